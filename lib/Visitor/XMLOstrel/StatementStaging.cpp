//===- StatementStaging.cpp - Statements written by a second family --------===//
//
// SEARCH, INSPECT, STRING/UNSTRING, file input-output, ACCEPT/DISPLAY,
// SORT/MERGE, XML, EXEC and report-writer statements. Kept apart from
// Statement.cpp while both are being written; they join it afterwards.
//
//===----------------------------------------------------------------------===//

#include "korvid/XMLOstrel.h"
#include "korvid/ParseTree.h"

#include <tinyxml2.h>

#include <cassert>

using tinyxml2::XMLElement;

namespace korvid {

// Not written out yet: these visits make no element and leave the
// return-element slot as it was.
void XMLOstrel::visit(InspectStatement *) {}
void XMLOstrel::visit(TallyingItem *) {}
void XMLOstrel::visit(TallyingItemFor *) {}
void XMLOstrel::visit(TallyingRegion *) {}
void XMLOstrel::visit(ReplacingItem *) {}
void XMLOstrel::visit(ReplacingRegion *) {}
void XMLOstrel::visit(ConvertingItem *) {}
void XMLOstrel::visit(InspectRegion *) {}
void XMLOstrel::visit(StringStatement *) {}
void XMLOstrel::visit(StringItem *) {}
void XMLOstrel::visit(UnstringStatement *) {}
void XMLOstrel::visit(UnstringDelimitedItem *) {}
void XMLOstrel::visit(UnstringIntoItem *) {}
void XMLOstrel::visit(UnstringTallyingPhrase *) {}
void XMLOstrel::visit(OpenStatement *) {}
void XMLOstrel::visit(OpenItem *) {}
void XMLOstrel::visit(OpenFile *) {}
void XMLOstrel::visit(CloseStatement *) {}
void XMLOstrel::visit(CloseFile *) {}
void XMLOstrel::visit(ReadStatement *) {}
void XMLOstrel::visit(ReadKeyPhrase *) {}
void XMLOstrel::visit(WriteStatement *) {}
void XMLOstrel::visit(WriteAdvancing *) {}
void XMLOstrel::visit(RewriteStatement *) {}
void XMLOstrel::visit(DeleteStatement *) {}
void XMLOstrel::visit(StartStatement *) {}
void XMLOstrel::visit(StartKey *) {}
void XMLOstrel::visit(AcceptStatement *) {}
void XMLOstrel::visit(AcceptFrom *) {}
void XMLOstrel::visit(DisplayStatement *) {}
void XMLOstrel::visit(SortStatement *) {}
void XMLOstrel::visit(MergeStatement *) {}
void XMLOstrel::visit(SortKey *) {}
void XMLOstrel::visit(SortIO *) {}
void XMLOstrel::visit(ReleaseStatement *) {}
void XMLOstrel::visit(ReturnStatement *) {}
void XMLOstrel::visit(XMLGenerateStatement *) {}
void XMLOstrel::visit(XMLParseStatement *) {}
void XMLOstrel::visit(ExecStatement *) {}
void XMLOstrel::visit(RwGenerateStatement *) {}
void XMLOstrel::visit(RwInitiateStatement *) {}
void XMLOstrel::visit(RwTerminateStatement *) {}
void XMLOstrel::visit(RwSuppressStatement *) {}
void XMLOstrel::visit(SearchStatement *) {}
void XMLOstrel::visit(SearchWhen *) {}

} // namespace korvid
