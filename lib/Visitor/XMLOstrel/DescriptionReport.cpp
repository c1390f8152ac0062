//===- DescriptionReport.cpp - Report and report group descriptions -------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(ReportDescription *) {}
void XMLOstrel::visit(ClauseAllow *) {}
void XMLOstrel::visit(ClauseCode *) {}
void XMLOstrel::visit(ClauseControl *) {}
void XMLOstrel::visit(ClauseLineLimit *) {}
void XMLOstrel::visit(PhraseHeading *) {}
void XMLOstrel::visit(PhraseFirstDetail *) {}
void XMLOstrel::visit(PhraseLastDetail *) {}
void XMLOstrel::visit(PhraseControlFooting *) {}
void XMLOstrel::visit(PhrasePageLimit *) {}
void XMLOstrel::visit(ClausePageLimit *) {}
void XMLOstrel::visit(ClauseRdStyle *) {}
void XMLOstrel::visit(ClauseOverflow *) {}
void XMLOstrel::visit(ReportDataDescription *) {}
void XMLOstrel::visit(VaryingPhrase *) {}
void XMLOstrel::visit(ClauseType *) {}
void XMLOstrel::visit(ClauseNextGroup *) {}
void XMLOstrel::visit(ClauseGroupLimit *) {}
void XMLOstrel::visit(ClauseRepeated *) {}
void XMLOstrel::visit(ClauseLine *) {}
void XMLOstrel::visit(ClauseColumn *) {}
void XMLOstrel::visit(SumClauseExpr *) {}
void XMLOstrel::visit(ClauseSum *) {}
void XMLOstrel::visit(CountClauseExpr *) {}
void XMLOstrel::visit(ClauseCount *) {}
void XMLOstrel::visit(ClausePresentAfter *) {}
void XMLOstrel::visit(ClausePresentWhen *) {}
void XMLOstrel::visit(ClauseFunction *) {}
void XMLOstrel::visit(ClauseReportValue *) {}
void XMLOstrel::visit(SourceArithExpr *) {}
void XMLOstrel::visit(SourceClauseExpr *) {}
void XMLOstrel::visit(ClauseSource *) {}
void XMLOstrel::visit(ClauseMultipleValues *) {}
void XMLOstrel::visit(PhraseWrapAfter *) {}
void XMLOstrel::visit(PhraseWrapTo *) {}
void XMLOstrel::visit(PhraseWrapStep *) {}
void XMLOstrel::visit(ClauseWrap *) {}
void XMLOstrel::visit(ClauseMultiple *) {}
void XMLOstrel::visit(PhraseOccursStep *) {}
void XMLOstrel::visit(ClauseReportOccurs *) {}
void XMLOstrel::visit(ClauseReportSign *) {}
void XMLOstrel::visit(ClauseRddStyle *) {}

} // namespace korvid
