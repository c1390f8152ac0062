//===- korvid/ParseTree/Procedure.h - Procedure division --------*- C++ -*-===//
//
// The procedure division and its structure (declaratives, sections,
// paragraphs, sentences), the parts every statement family shares (exception
// phrases, ROUNDED receivers, USING/RETURNING phrases and parameters), and
// the arithmetic, control-flow, inter-program, SEARCH and data-manipulation
// statements with their phrase nodes.
//
// Every concrete statement passes its StatementType to Statement. Where a
// statement comes in forms (ADD ... GIVING, PERFORM ... UNTIL, ...) it
// declares a getType() of its own returning that form; Statement::getType()
// stays reachable through a Statement pointer.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_PROCEDURE_H
#define KORVID_PARSETREE_PROCEDURE_H

#include "korvid/ParseTree/Node.h"
#include "korvid/ParseTree/Statement.h"

namespace korvid {

//===----------------------------------------------------------------------===//
// Enumerations
//===----------------------------------------------------------------------===//

/// The form of an ADD statement.
enum AddStmtType : int32_t {
  ADD_STMT_NONE = 0,
  ADD_STMT_SIMPLE = 1,
  ADD_STMT_GIVING = 2,
  ADD_STMT_CORRES = 3,
};

/// The form of a SUBTRACT statement.
enum SubStmtType : int32_t {
  SUB_STMT_NONE = 0,
  SUB_STMT_SIMPLE = 1,
  SUB_STMT_GIVING = 2,
  SUB_STMT_CORRES = 3,
};

/// The form of a MULTIPLY statement.
enum MulStmtType : int32_t {
  MUL_STMT_NONE = 0,
  MUL_STMT_SIMPLE = 1,
  MUL_STMT_GIVING = 2,
};

/// The form of a DIVIDE statement.
enum DivStmtType : int32_t {
  DIV_STMT_NONE = 0,
  DIV_STMT_SIMPLE = 1,
  DIV_STMT_INTO_GIVING = 2,
  DIV_STMT_BY_GIVING = 3,
  DIV_STMT_INTO_REMAINDER = 4,
  DIV_STMT_BY_REMAINDER = 5,
};

/// The form of a PERFORM statement.
enum PerformStmtType : int32_t {
  PFM_STMT_NONE = 0,
  PFM_STMT_SIMPLE = 1,
  PFM_STMT_TIMES = 2,
  PFM_STMT_UNTIL = 3,
  PFM_STMT_VARYING = 4,
  PFM_STMT_NOLIMIT = 5,
};

/// Serial SEARCH or binary SEARCH ALL.
enum SearchStmtType : int32_t {
  SRCH_STMT_NONE = 0,
  SRCH_STMT_SERIAL = 1,
  SRCH_STMT_BINARY = 2,
};

/// What an EVALUATE subject is.
enum EvalSubType : int32_t {
  EVAL_SUB_NONE = 0,
  EVAL_SUB_TRUE = 1,
  EVAL_SUB_FALSE = 2,
  EVAL_SUB_COND = 3,
  EVAL_SUB_EXPR = 4,
};

/// What an object of an EVALUATE WHEN phrase is.
enum EvalObjectType : int32_t {
  EVAL_OBJ_NONE = 0,
  EVAL_OBJ_ANY = 1,
  EVAL_OBJ_TRUE = 2,
  EVAL_OBJ_FALSE = 3,
  EVAL_OBJ_COND = 4,
  EVAL_OBJ_EXPR = 5,
};

/// Whether an EVALUATE case is a WHEN group or the WHEN OTHER case.
enum EvalWhenType : int32_t {
  EVAL_WHEN_NONE = 0,
  EVAL_WHEN_WHEN = 1,
  EVAL_WHEN_OTHER = 2,
};

/// The category named by an INITIALIZE REPLACING item.
enum InitReplType : int32_t {
  INIT_NONE = 0,
  INIT_ALPHABETIC = 1,
  INIT_ALPHANUMERIC = 2,
  INIT_ALPHANUMERIC_EDITED = 3,
  INIT_NATIONAL = 4,
  INIT_NATIONAL_EDITED = 5,
  INIT_NUMERIC = 6,
  INIT_NUMERIC_EDITED = 7,
  INIT_DBCS = 8,
  INIT_EGCS = 9,
  INIT_BOOLEAN = 10,
};

/// The form of one SET item: TO, UP BY or DOWN BY.
enum SetItemType : int32_t {
  SET_ITEM_NONE = 0,
  SET_ITEM_UP_BY = 1,
  SET_ITEM_DOWN_BY = 2,
  SET_ITEM_TO = 3,
};

/// How the parameters of a USING phrase (procedure division, ENTRY) are
/// passed.
enum ParamType : int32_t {
  PARAM_NONE = 0,
  PARAM_REFERENCE = 1,
  PARAM_VALUE = 2,
};

/// How the arguments of a CALL ... USING group are passed.
enum UsingType : int32_t {
  USING_NONE = 0,
  USING_REFERENCE = 1,
  USING_CONTENT = 2,
  USING_VALUE = 3,
};

/// Which kind of procedure a USE statement declares.
enum UseStatementType : int32_t {
  USE_STMT_NONE = 0,
  /// USE AFTER STANDARD ERROR/EXCEPTION PROCEDURE ON files or open modes.
  USE_STMT_EXCEPTION = 1,
  /// USE FOR DEBUGGING ON procedures.
  USE_STMT_DEBUGGING = 2,
  /// USE BEFORE REPORTING a report group.
  USE_STMT_REPORTING = 3,
};

//===----------------------------------------------------------------------===//
// The statement frame
//===----------------------------------------------------------------------===//

/// An exception phrase of a statement (ON SIZE ERROR, AT END, INVALID KEY,
/// ON OVERFLOW, ...) with its imperative statements; NOT ON ... when negated.
class ExceptionHandler : public Node {
public:
  ExceptionType getType() const { return Type; }
  /// True for the NOT form of the phrase.
  bool getIsNegate() const { return IsNegate; }

  unsigned long getImperStmtListSize() const { return ImperStmtList.size(); }
  NodeList<Statement>::const_iterator getImperStmtListBegin() const {
    return ImperStmtList.begin();
  }
  NodeList<Statement>::const_iterator getImperStmtListEnd() const {
    return ImperStmtList.end();
  }

  void setType(ExceptionType T) { Type = T; }
  void setIsNegate(bool B) { IsNegate = B; }
  void addImperStmt(Statement *S) { ImperStmtList.push_back(S); }

private:
  ExceptionType Type = EXCEPTION_NONE;
  bool IsNegate = false;
  NodeList<Statement> ImperStmtList;
};

/// A receiving operand of an arithmetic statement, with its ROUNDED phrase.
class RoundedExpression : public Node {
public:
  /// The receiving operand.
  Expression *getExpression() const { return Expr; }
  /// The ROUNDED keyword, null when not written.
  Word *getRoundedWord() const { return RoundedWord; }
  bool getIsRounded() const { return RoundedWord != nullptr; }

  void setExpression(Expression *E) { Expr = E; }
  void setRoundedWord(Word *W) { RoundedWord = W; }

private:
  Expression *Expr = nullptr;
  Word *RoundedWord = nullptr;
};

//===----------------------------------------------------------------------===//
// USING, RETURNING and parameters
//===----------------------------------------------------------------------===//

/// One item of a CALL ... USING group: an argument or OMITTED.
class UsingItem : public Node {
public:
  /// True when the item is the word OMITTED.
  bool getOmitted() const { return Omitted; }
  /// The argument, null for OMITTED.
  Expression *getItem() const { return Item; }

  void setOmitted(bool B) { Omitted = B; }
  void setItem(Expression *E) { Item = E; }

private:
  bool Omitted = false;
  Expression *Item = nullptr;
};

/// A group of CALL arguments sharing one passing mode (BY REFERENCE,
/// BY CONTENT, BY VALUE).
class Using : public Node {
public:
  Using() = default;
  /// A group that reports the location of \p LocFrom, with a copy of
  /// \p Items. Usable without the tree (e.g. built on the stack).
  Using(Node *LocFrom, UsingType T, const NodeList<UsingItem> &Items,
        Word *TypeW, Word *ByW)
      : Node(LocFrom), Type(T), TypeWord(TypeW), ByWord(ByW),
        ItemList(Items) {}

  UsingType getType() const { return Type; }
  /// The REFERENCE, CONTENT or VALUE keyword, null when not written.
  Word *getTypeWord() const { return TypeWord; }
  /// The BY keyword, null when not written.
  Word *getByWord() const { return ByWord; }

  unsigned long getItemListSize() const { return ItemList.size(); }
  NodeList<UsingItem>::const_iterator getItemListBegin() const { return ItemList.begin(); }
  NodeList<UsingItem>::const_iterator getItemListEnd() const { return ItemList.end(); }

  void setType(UsingType T) { Type = T; }
  void setTypeWord(Word *W) { TypeWord = W; }
  void setByWord(Word *W) { ByWord = W; }
  void addItem(UsingItem *I) { ItemList.push_back(I); }

private:
  UsingType Type = USING_NONE;
  Word *TypeWord = nullptr;
  Word *ByWord = nullptr;
  NodeList<UsingItem> ItemList;
};

/// A group of parameters of the procedure division's or an ENTRY's USING
/// phrase sharing one passing mode (BY REFERENCE, BY VALUE).
class Parameter : public Node {
public:
  Parameter() = default;
  /// A group that reports the location of \p LocFrom, with a copy of
  /// \p Idents. Usable without the tree (e.g. built on the stack).
  Parameter(Node *LocFrom, const NodeList<DataIdentifierExpression> &Idents,
            Word *TypeW, Word *ByW, ParamType T)
      : Node(LocFrom), Type(T), TypeWord(TypeW), ByWord(ByW),
        IdentList(Idents) {}

  ParamType getType() const { return Type; }
  /// The REFERENCE or VALUE keyword, null when not written.
  Word *getTypeWord() const { return TypeWord; }
  /// The BY keyword, null when not written.
  Word *getByWord() const { return ByWord; }

  unsigned long getIdentListSize() const { return IdentList.size(); }
  NodeList<DataIdentifierExpression>::const_iterator getIdentListBegin() const {
    return IdentList.begin();
  }
  NodeList<DataIdentifierExpression>::const_iterator getIdentListEnd() const {
    return IdentList.end();
  }

  void setType(ParamType T) { Type = T; }
  void setTypeWord(Word *W) { TypeWord = W; }
  void setByWord(Word *W) { ByWord = W; }
  void addIdent(DataIdentifierExpression *D) { IdentList.push_back(D); }

private:
  ParamType Type = PARAM_NONE;
  Word *TypeWord = nullptr;
  Word *ByWord = nullptr;
  NodeList<DataIdentifierExpression> IdentList;
};

/// The USING phrase of the procedure division header or of ENTRY: its
/// parameter groups in source order.
class ParamPhrase : public Node {
public:
  /// The USING keyword.
  Word *getUsingWord() const { return UsingWord; }

  unsigned long getParamListSize() const { return ParamList.size(); }
  NodeList<Parameter>::const_iterator getParamListBegin() const { return ParamList.begin(); }
  NodeList<Parameter>::const_iterator getParamListEnd() const { return ParamList.end(); }

  void setUsingWord(Word *W) { UsingWord = W; }
  void addParam(Parameter *P) { ParamList.push_back(P); }

private:
  Word *UsingWord = nullptr;
  NodeList<Parameter> ParamList;
};

/// A RETURNING phrase (procedure division header, CALL): the item that
/// receives the result.
class Returning : public Node {
public:
  DataIdentifierExpression *getReturnItem() const { return ReturnItem; }
  /// The RETURNING keyword.
  Word *getReturningWord() const { return ReturningWord; }

  void setReturnItem(DataIdentifierExpression *D) { ReturnItem = D; }
  void setReturningWord(Word *W) { ReturningWord = W; }

private:
  DataIdentifierExpression *ReturnItem = nullptr;
  Word *ReturningWord = nullptr;
};

/// A bare USING keyword phrase, kept for its location only.
class UsingPhrase : public Node {
public:
  Word *getUsingWord() const { return UsingWord; }
  void setUsingWord(Word *W) { UsingWord = W; }

private:
  Word *UsingWord = nullptr;
};

//===----------------------------------------------------------------------===//
// Procedure division structure
//===----------------------------------------------------------------------===//

/// A sentence: statements up to a separator period.
class Sentence : public Node {
public:
  unsigned long getStmtSize() const { return Stmt.size(); }
  NodeList<Statement>::const_iterator getStmtBegin() const { return Stmt.begin(); }
  NodeList<Statement>::const_iterator getStmtEnd() const { return Stmt.end(); }

  void addStmt(Statement *S) { Stmt.push_back(S); }

private:
  NodeList<Statement> Stmt;
};

/// A paragraph: its name and its sentences.
class Paragraph : public Node {
public:
  /// The paragraph name, null for the unnamed paragraph.
  Word *getName() const { return Name; }

  unsigned long getSentSize() const { return Sent.size(); }
  NodeList<Sentence>::const_iterator getSentBegin() const { return Sent.begin(); }
  NodeList<Sentence>::const_iterator getSentEnd() const { return Sent.end(); }

  void setName(Word *W) { Name = W; }
  void addSent(Sentence *S) { Sent.push_back(S); }

private:
  Word *Name = nullptr;
  NodeList<Sentence> Sent;
};

/// A section: its name, the sentences before its first paragraph, and its
/// paragraphs.
class Section : public Node {
public:
  Word *getName() const { return Name; }
  /// The segment number after SECTION, null when not written.
  Word *getSegmentNumber() const { return SegmentNumber; }

  /// Sentences that stand before the section's first paragraph.
  unsigned long getSentSize() const { return Sent.size(); }
  NodeList<Sentence>::const_iterator getSentBegin() const { return Sent.begin(); }
  NodeList<Sentence>::const_iterator getSentEnd() const { return Sent.end(); }

  unsigned long getParaSize() const { return Para.size(); }
  NodeList<Paragraph>::const_iterator getParaBegin() const { return Para.begin(); }
  NodeList<Paragraph>::const_iterator getParaEnd() const { return Para.end(); }

  void setName(Word *W) { Name = W; }
  void setSegmentNumber(Word *W) { SegmentNumber = W; }
  void addSent(Sentence *S) { Sent.push_back(S); }
  void addPara(Paragraph *P) { Para.push_back(P); }

private:
  Word *Name = nullptr;
  Word *SegmentNumber = nullptr;
  NodeList<Sentence> Sent;
  NodeList<Paragraph> Para;
};

/// A USE statement: the declarative procedure's trigger, heading a section
/// of the declaratives.
class UseStatement : public Statement {
public:
  UseStatement() : Statement(STMT_USE) {}

  /// The kind of USE; hides Statement::getType().
  UseStatementType getType() const { return UseType; }
  /// The GLOBAL keyword, null when not written.
  Word *getGlobalWord() const { return GlobalWord; }
  /// The open mode (INPUT, OUTPUT, I-O, EXTEND) of an exception USE, null
  /// when files are named instead.
  Word *getOpenModeWord() const { return OpenModeWord; }
  /// The report group of USE BEFORE REPORTING.
  Word *getReportGroupName() const { return ReportGroupName; }
  /// ALL PROCEDURES of USE FOR DEBUGGING, null when not written.
  Word *getAllProceduresWord() const { return AllProceduresWord; }

  /// The files of an exception USE.
  unsigned long getFileNameListSize() const { return FileNameList.size(); }
  NodeList<Word>::const_iterator getFileNameListBegin() const { return FileNameList.begin(); }
  NodeList<Word>::const_iterator getFileNameListEnd() const { return FileNameList.end(); }

  /// The procedures of USE FOR DEBUGGING.
  unsigned long getProcedureNameListSize() const { return ProcedureNameList.size(); }
  NodeList<QualifiedWord>::const_iterator getProcedureNameListBegin() const {
    return ProcedureNameList.begin();
  }
  NodeList<QualifiedWord>::const_iterator getProcedureNameListEnd() const {
    return ProcedureNameList.end();
  }

  void setType(UseStatementType T) { UseType = T; }
  void setGlobalWord(Word *W) { GlobalWord = W; }
  void setOpenModeWord(Word *W) { OpenModeWord = W; }
  void setReportGroupName(Word *W) { ReportGroupName = W; }
  void setAllProceduresWord(Word *W) { AllProceduresWord = W; }
  void addFileName(Word *W) { FileNameList.push_back(W); }
  void addProcedureName(QualifiedWord *Q) { ProcedureNameList.push_back(Q); }

private:
  UseStatementType UseType = USE_STMT_NONE;
  Word *GlobalWord = nullptr;
  Word *OpenModeWord = nullptr;
  Word *ReportGroupName = nullptr;
  Word *AllProceduresWord = nullptr;
  NodeList<Word> FileNameList;
  NodeList<QualifiedWord> ProcedureNameList;
};

/// A section of the declaratives: a section whose first sentence is a USE
/// statement.
class DeclarativesSection : public Section {
public:
  UseStatement *getUseStatement() const { return UseStmt; }
  void setUseStatement(UseStatement *U) { UseStmt = U; }

private:
  UseStatement *UseStmt = nullptr;
};

/// The DECLARATIVES ... END DECLARATIVES part of the procedure division.
class Declaratives : public Node {
public:
  unsigned long getSectSize() const { return Sect.size(); }
  NodeList<DeclarativesSection>::const_iterator getSectBegin() const { return Sect.begin(); }
  NodeList<DeclarativesSection>::const_iterator getSectEnd() const { return Sect.end(); }

  void addSect(DeclarativesSection *S) { Sect.push_back(S); }

private:
  NodeList<DeclarativesSection> Sect;
};

/// The procedure division: its header phrases, its declaratives, and its
/// body, which is loose sentences, then paragraphs, then sections.
class ProcedureDivision : public Node {
public:
  /// The USING phrase of the header, null when not written.
  ParamPhrase *getParameters() const { return Parameters; }
  /// The RETURNING phrase of the header, null when not written.
  Returning *getReturning() const { return Ret; }
  /// The declaratives, null when not written.
  Declaratives *getDeclaratives() const { return Decls; }

  /// Sentences before the first paragraph or section.
  unsigned long getSentSize() const { return Sent.size(); }
  NodeList<Sentence>::const_iterator getSentBegin() const { return Sent.begin(); }
  NodeList<Sentence>::const_iterator getSentEnd() const { return Sent.end(); }

  /// Paragraphs before the first section.
  unsigned long getParaSize() const { return Para.size(); }
  NodeList<Paragraph>::const_iterator getParaBegin() const { return Para.begin(); }
  NodeList<Paragraph>::const_iterator getParaEnd() const { return Para.end(); }

  unsigned long getSectSize() const { return Sect.size(); }
  NodeList<Section>::const_iterator getSectBegin() const { return Sect.begin(); }
  NodeList<Section>::const_iterator getSectEnd() const { return Sect.end(); }

  void setParameters(ParamPhrase *P) { Parameters = P; }
  void setReturning(Returning *R) { Ret = R; }
  void setDeclaratives(Declaratives *D) { Decls = D; }
  void addSent(Sentence *S) { Sent.push_back(S); }
  void addPara(Paragraph *P) { Para.push_back(P); }
  void addSect(Section *S) { Sect.push_back(S); }

private:
  ParamPhrase *Parameters = nullptr;
  Returning *Ret = nullptr;
  Declaratives *Decls = nullptr;
  NodeList<Sentence> Sent;
  NodeList<Paragraph> Para;
  NodeList<Section> Sect;
};

//===----------------------------------------------------------------------===//
// Arithmetic statements
//===----------------------------------------------------------------------===//

/// ADD: operands added to receivers, or their sum given to receivers, or
/// ADD CORRESPONDING.
class AddStatement : public Statement {
public:
  AddStatement() : Statement(STMT_ADD) {}

  /// The form of ADD; hides Statement::getType().
  AddStmtType getType() const { return AddType; }
  /// The operand after TO of the GIVING form, null when absent.
  Expression *getToOperand() const { return ToOperand; }
  /// The sending group of ADD CORRESPONDING.
  Expression *getCorrespondingExpr() const { return CorrespondingExpr; }
  /// The receiving group of ADD CORRESPONDING.
  RoundedExpression *getToRoundExpr() const { return ToRoundExpr; }

  /// The operands before TO (or before GIVING).
  unsigned long getOperandListSize() const { return OperandList.size(); }
  NodeList<Expression>::const_iterator getOperandListBegin() const { return OperandList.begin(); }
  NodeList<Expression>::const_iterator getOperandListEnd() const { return OperandList.end(); }

  /// The receivers after TO.
  unsigned long getToListSize() const { return ToList.size(); }
  NodeList<RoundedExpression>::const_iterator getToListBegin() const { return ToList.begin(); }
  NodeList<RoundedExpression>::const_iterator getToListEnd() const { return ToList.end(); }

  unsigned long getGivingListSize() const { return GivingList.size(); }
  NodeList<RoundedExpression>::const_iterator getGivingListBegin() const {
    return GivingList.begin();
  }
  NodeList<RoundedExpression>::const_iterator getGivingListEnd() const {
    return GivingList.end();
  }

  /// ON SIZE ERROR and NOT ON SIZE ERROR phrases.
  unsigned long getSizeErrorHandlerSize() const { return SizeErrorHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerBegin() const {
    return SizeErrorHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerEnd() const {
    return SizeErrorHandler.end();
  }

  void setType(AddStmtType T) { AddType = T; }
  void setToOperand(Expression *E) { ToOperand = E; }
  void setCorrespondingExpr(Expression *E) { CorrespondingExpr = E; }
  void setToRoundExpr(RoundedExpression *R) { ToRoundExpr = R; }
  void addOperand(Expression *E) { OperandList.push_back(E); }
  void addToItem(RoundedExpression *R) { ToList.push_back(R); }
  void addGivingItem(RoundedExpression *R) { GivingList.push_back(R); }
  void addSizeErrorHandler(ExceptionHandler *H) { SizeErrorHandler.push_back(H); }

private:
  AddStmtType AddType = ADD_STMT_NONE;
  Expression *ToOperand = nullptr;
  Expression *CorrespondingExpr = nullptr;
  RoundedExpression *ToRoundExpr = nullptr;
  NodeList<Expression> OperandList;
  NodeList<RoundedExpression> ToList;
  NodeList<RoundedExpression> GivingList;
  NodeList<ExceptionHandler> SizeErrorHandler;
};

/// SUBTRACT: operands subtracted from receivers, or the difference given to
/// receivers, or SUBTRACT CORRESPONDING.
class SubtractStatement : public Statement {
public:
  SubtractStatement() : Statement(STMT_SUBTRACT) {}

  /// The form of SUBTRACT; hides Statement::getType().
  SubStmtType getType() const { return SubType; }
  /// The sending group of SUBTRACT CORRESPONDING.
  Expression *getCorrespondingExpr() const { return CorrespondingExpr; }
  /// The minuend after FROM of the GIVING form.
  Expression *getFromExpr() const { return FromExpr; }
  /// The receiving group of SUBTRACT CORRESPONDING.
  RoundedExpression *getFromRoundExpr() const { return FromRoundExpr; }

  /// The operands before FROM.
  unsigned long getOperandListSize() const { return OperandList.size(); }
  NodeList<Expression>::const_iterator getOperandListBegin() const { return OperandList.begin(); }
  NodeList<Expression>::const_iterator getOperandListEnd() const { return OperandList.end(); }

  /// The receivers after FROM.
  unsigned long getFromListSize() const { return FromList.size(); }
  NodeList<RoundedExpression>::const_iterator getFromListBegin() const {
    return FromList.begin();
  }
  NodeList<RoundedExpression>::const_iterator getFromListEnd() const { return FromList.end(); }

  unsigned long getGivingListSize() const { return GivingList.size(); }
  NodeList<RoundedExpression>::const_iterator getGivingListBegin() const {
    return GivingList.begin();
  }
  NodeList<RoundedExpression>::const_iterator getGivingListEnd() const {
    return GivingList.end();
  }

  /// ON SIZE ERROR and NOT ON SIZE ERROR phrases.
  unsigned long getSizeErrorHandlerSize() const { return SizeErrorHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerBegin() const {
    return SizeErrorHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerEnd() const {
    return SizeErrorHandler.end();
  }

  void setType(SubStmtType T) { SubType = T; }
  void setCorrespondingExpr(Expression *E) { CorrespondingExpr = E; }
  void setFromExpr(Expression *E) { FromExpr = E; }
  void setFromRoundExpr(RoundedExpression *R) { FromRoundExpr = R; }
  void addOperand(Expression *E) { OperandList.push_back(E); }
  void addFromItem(RoundedExpression *R) { FromList.push_back(R); }
  void addGivingItem(RoundedExpression *R) { GivingList.push_back(R); }
  void addSizeErrorHandler(ExceptionHandler *H) { SizeErrorHandler.push_back(H); }

private:
  SubStmtType SubType = SUB_STMT_NONE;
  Expression *CorrespondingExpr = nullptr;
  Expression *FromExpr = nullptr;
  RoundedExpression *FromRoundExpr = nullptr;
  NodeList<Expression> OperandList;
  NodeList<RoundedExpression> FromList;
  NodeList<RoundedExpression> GivingList;
  NodeList<ExceptionHandler> SizeErrorHandler;
};

/// MULTIPLY: an operand multiplied into receivers, or the product given to
/// receivers.
class MultiplyStatement : public Statement {
public:
  MultiplyStatement() : Statement(STMT_MULTIPLY) {}

  /// The form of MULTIPLY; hides Statement::getType().
  MulStmtType getType() const { return MulType; }
  /// The operand before BY.
  Expression *getOperand() const { return Operand; }
  /// The operand after BY of the GIVING form.
  Expression *getByOperand() const { return ByOperand; }

  /// The receivers after BY.
  unsigned long getByListSize() const { return ByList.size(); }
  NodeList<RoundedExpression>::const_iterator getByListBegin() const { return ByList.begin(); }
  NodeList<RoundedExpression>::const_iterator getByListEnd() const { return ByList.end(); }

  unsigned long getGivingListSize() const { return GivingList.size(); }
  NodeList<RoundedExpression>::const_iterator getGivingListBegin() const {
    return GivingList.begin();
  }
  NodeList<RoundedExpression>::const_iterator getGivingListEnd() const {
    return GivingList.end();
  }

  /// ON SIZE ERROR and NOT ON SIZE ERROR phrases.
  unsigned long getSizeErrorHandlerSize() const { return SizeErrorHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerBegin() const {
    return SizeErrorHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerEnd() const {
    return SizeErrorHandler.end();
  }

  void setType(MulStmtType T) { MulType = T; }
  void setOperand(Expression *E) { Operand = E; }
  void setByOperand(Expression *E) { ByOperand = E; }
  void addByItem(RoundedExpression *R) { ByList.push_back(R); }
  void addGivingItem(RoundedExpression *R) { GivingList.push_back(R); }
  void addSizeErrorHandler(ExceptionHandler *H) { SizeErrorHandler.push_back(H); }

private:
  MulStmtType MulType = MUL_STMT_NONE;
  Expression *Operand = nullptr;
  Expression *ByOperand = nullptr;
  NodeList<RoundedExpression> ByList;
  NodeList<RoundedExpression> GivingList;
  NodeList<ExceptionHandler> SizeErrorHandler;
};

/// DIVIDE: INTO or BY, with GIVING receivers and an optional REMAINDER.
class DivideStatement : public Statement {
public:
  DivideStatement() : Statement(STMT_DIVIDE) {}

  /// The form of DIVIDE; hides Statement::getType().
  DivStmtType getType() const { return DivType; }
  /// The first operand (before INTO or BY).
  Expression *getOperand() const { return Operand; }
  /// The operand after INTO of the GIVING and REMAINDER forms.
  Expression *getIntoExpr() const { return IntoExpr; }
  /// The operand after BY.
  Expression *getByExpr() const { return ByExpr; }
  /// The item after REMAINDER, null when not written.
  IdentifierExpression *getRemainderExpr() const { return RemainderExpr; }

  /// The receivers after INTO of the simple form.
  unsigned long getToListSize() const { return ToList.size(); }
  NodeList<RoundedExpression>::const_iterator getToListBegin() const { return ToList.begin(); }
  NodeList<RoundedExpression>::const_iterator getToListEnd() const { return ToList.end(); }

  unsigned long getGivingListSize() const { return GivingList.size(); }
  NodeList<RoundedExpression>::const_iterator getGivingListBegin() const {
    return GivingList.begin();
  }
  NodeList<RoundedExpression>::const_iterator getGivingListEnd() const {
    return GivingList.end();
  }

  /// ON SIZE ERROR and NOT ON SIZE ERROR phrases.
  unsigned long getSizeErrorHandlerSize() const { return SizeErrorHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerBegin() const {
    return SizeErrorHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerEnd() const {
    return SizeErrorHandler.end();
  }

  void setType(DivStmtType T) { DivType = T; }
  void setOperand(Expression *E) { Operand = E; }
  void setIntoExpr(Expression *E) { IntoExpr = E; }
  void setByExpr(Expression *E) { ByExpr = E; }
  void setRemainderExpr(IdentifierExpression *E) { RemainderExpr = E; }
  void addToItem(RoundedExpression *R) { ToList.push_back(R); }
  void addGivingItem(RoundedExpression *R) { GivingList.push_back(R); }
  void addSizeErrorHandler(ExceptionHandler *H) { SizeErrorHandler.push_back(H); }

private:
  DivStmtType DivType = DIV_STMT_NONE;
  Expression *Operand = nullptr;
  Expression *IntoExpr = nullptr;
  Expression *ByExpr = nullptr;
  IdentifierExpression *RemainderExpr = nullptr;
  NodeList<RoundedExpression> ToList;
  NodeList<RoundedExpression> GivingList;
  NodeList<ExceptionHandler> SizeErrorHandler;
};

/// COMPUTE: receivers = arithmetic expression.
class ComputeStatement : public Statement {
public:
  ComputeStatement() : Statement(STMT_COMPUTE) {}

  /// The expression after = (or EQUAL).
  Expression *getArithmeticExpression() const { return ArithmeticExpression; }

  /// The receivers.
  unsigned long getOperandListSize() const { return OperandList.size(); }
  NodeList<RoundedExpression>::const_iterator getOperandListBegin() const {
    return OperandList.begin();
  }
  NodeList<RoundedExpression>::const_iterator getOperandListEnd() const {
    return OperandList.end();
  }

  /// ON SIZE ERROR and NOT ON SIZE ERROR phrases.
  unsigned long getSizeErrorHandlerSize() const { return SizeErrorHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerBegin() const {
    return SizeErrorHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getSizeErrorHandlerEnd() const {
    return SizeErrorHandler.end();
  }

  void setArithmeticExpression(Expression *E) { ArithmeticExpression = E; }
  void addOperand(RoundedExpression *R) { OperandList.push_back(R); }
  void addSizeErrorHandler(ExceptionHandler *H) { SizeErrorHandler.push_back(H); }

private:
  Expression *ArithmeticExpression = nullptr;
  NodeList<RoundedExpression> OperandList;
  NodeList<ExceptionHandler> SizeErrorHandler;
};

//===----------------------------------------------------------------------===//
// Control-flow statements
//===----------------------------------------------------------------------===//

/// IF condition, then-statements, ELSE statements.
class IfStatement : public Statement {
public:
  IfStatement() : Statement(STMT_IF) {}

  Condition *getCondition() const { return Cond; }

  /// The statements of the then-branch.
  unsigned long getIfStmtListSize() const { return IfStmtList.size(); }
  NodeList<Statement>::const_iterator getIfStmtListBegin() const { return IfStmtList.begin(); }
  NodeList<Statement>::const_iterator getIfStmtListEnd() const { return IfStmtList.end(); }

  /// The statements of the ELSE branch.
  unsigned long getElseStmtListSize() const { return ElseStmtList.size(); }
  NodeList<Statement>::const_iterator getElseStmtListBegin() const {
    return ElseStmtList.begin();
  }
  NodeList<Statement>::const_iterator getElseStmtListEnd() const { return ElseStmtList.end(); }

  void setCondition(Condition *C) { Cond = C; }
  void addIfStmt(Statement *S) { IfStmtList.push_back(S); }
  void addElseStmt(Statement *S) { ElseStmtList.push_back(S); }

private:
  Condition *Cond = nullptr;
  NodeList<Statement> IfStmtList;
  NodeList<Statement> ElseStmtList;
};

/// One subject of EVALUATE (after EVALUATE or ALSO): TRUE, FALSE, a
/// condition or an expression.
class EvaluateSubject : public Node {
public:
  EvalSubType getType() const { return Type; }
  /// The TRUE or FALSE keyword.
  Word *getTFWord() const { return TFWord; }
  Condition *getCond() const { return Cond; }
  Expression *getExpr() const { return Expr; }

  void setType(EvalSubType T) { Type = T; }
  void setTFWord(Word *W) { TFWord = W; }
  void setCond(Condition *C) { Cond = C; }
  void setExpr(Expression *E) { Expr = E; }

private:
  EvalSubType Type = EVAL_SUB_NONE;
  Word *TFWord = nullptr;
  Condition *Cond = nullptr;
  Expression *Expr = nullptr;
};

/// One object of a WHEN phrase (one per subject, joined by ALSO): ANY, TRUE,
/// FALSE, a condition, or [NOT] an expression with an optional THRU range.
class EvaluateObject : public Node {
public:
  EvalObjectType getType() const { return Type; }
  Word *getAnyWord() const { return AnyWord; }
  Word *getTrueWord() const { return TrueWord; }
  Word *getFalseWord() const { return FalseWord; }
  /// The NOT before the expression, null when not written.
  Word *getNotWord() const { return NotWord; }
  Condition *getCondition() const { return Cond; }
  /// The expression, or the start of a THRU range.
  Expression *getFrontExpression() const { return FrontExpression; }
  /// The end of a THRU range, null when not written.
  Expression *getRearExpression() const { return RearExpression; }

  void setType(EvalObjectType T) { Type = T; }
  void setAnyWord(Word *W) { AnyWord = W; }
  void setTrueWord(Word *W) { TrueWord = W; }
  void setFalseWord(Word *W) { FalseWord = W; }
  void setNotWord(Word *W) { NotWord = W; }
  void setCondition(Condition *C) { Cond = C; }
  void setFrontExpression(Expression *E) { FrontExpression = E; }
  void setRearExpression(Expression *E) { RearExpression = E; }

private:
  EvalObjectType Type = EVAL_OBJ_NONE;
  Word *AnyWord = nullptr;
  Word *TrueWord = nullptr;
  Word *FalseWord = nullptr;
  Word *NotWord = nullptr;
  Condition *Cond = nullptr;
  Expression *FrontExpression = nullptr;
  Expression *RearExpression = nullptr;
};

/// One WHEN phrase of EVALUATE: its objects joined by ALSO.
class EvaluateWhen : public Node {
public:
  unsigned long getWhenObjListSize() const { return WhenObjList.size(); }
  NodeList<EvaluateObject>::const_iterator getWhenObjListBegin() const {
    return WhenObjList.begin();
  }
  NodeList<EvaluateObject>::const_iterator getWhenObjListEnd() const {
    return WhenObjList.end();
  }

  void addWhenObj(EvaluateObject *O) { WhenObjList.push_back(O); }

private:
  NodeList<EvaluateObject> WhenObjList;
};

/// One case of EVALUATE: consecutive WHEN phrases sharing their statements,
/// or the WHEN OTHER case.
class EvaluateCase : public Node {
public:
  EvalWhenType getType() const { return Type; }

  unsigned long getWhenListSize() const { return WhenList.size(); }
  NodeList<EvaluateWhen>::const_iterator getWhenListBegin() const { return WhenList.begin(); }
  NodeList<EvaluateWhen>::const_iterator getWhenListEnd() const { return WhenList.end(); }

  unsigned long getWhenStmtListSize() const { return WhenStmtList.size(); }
  NodeList<Statement>::const_iterator getWhenStmtListBegin() const {
    return WhenStmtList.begin();
  }
  NodeList<Statement>::const_iterator getWhenStmtListEnd() const { return WhenStmtList.end(); }

  void setType(EvalWhenType T) { Type = T; }
  void addWhen(EvaluateWhen *W) { WhenList.push_back(W); }
  void addWhenStmt(Statement *S) { WhenStmtList.push_back(S); }

private:
  EvalWhenType Type = EVAL_WHEN_NONE;
  NodeList<EvaluateWhen> WhenList;
  NodeList<Statement> WhenStmtList;
};

/// EVALUATE: subjects, WHEN cases, and the WHEN OTHER case.
class EvaluateStatement : public Statement {
public:
  EvaluateStatement() : Statement(STMT_EVALUATE) {}

  /// The WHEN OTHER case, null when not written.
  EvaluateCase *getWhenOtherCase() const { return WhenOtherCase; }

  unsigned long getSubjectListSize() const { return SubjectList.size(); }
  NodeList<EvaluateSubject>::const_iterator getSubjectListBegin() const {
    return SubjectList.begin();
  }
  NodeList<EvaluateSubject>::const_iterator getSubjectListEnd() const {
    return SubjectList.end();
  }

  /// The WHEN cases, WHEN OTHER excluded.
  unsigned long getWhenCaseListSize() const { return WhenCaseList.size(); }
  NodeList<EvaluateCase>::const_iterator getWhenCaseListBegin() const {
    return WhenCaseList.begin();
  }
  NodeList<EvaluateCase>::const_iterator getWhenCaseListEnd() const {
    return WhenCaseList.end();
  }

  void setWhenOtherCase(EvaluateCase *C) { WhenOtherCase = C; }
  void addSubject(EvaluateSubject *S) { SubjectList.push_back(S); }
  void addWhenCase(EvaluateCase *C) { WhenCaseList.push_back(C); }

private:
  EvaluateCase *WhenOtherCase = nullptr;
  NodeList<EvaluateSubject> SubjectList;
  NodeList<EvaluateCase> WhenCaseList;
};

/// The WITH TEST BEFORE / AFTER phrase of PERFORM.
class PerformTest : public Node {
public:
  /// True for TEST AFTER, false for TEST BEFORE.
  bool getIsAfter() const { return IsAfter; }
  void setIsAfter(bool B) { IsAfter = B; }

private:
  bool IsAfter = false;
};

/// The procedure range of an out-of-line PERFORM: a procedure, or
/// procedure THRU procedure.
class PerformProcedure : public Node {
public:
  QualifiedWord *getProcedureName1() const { return ProcedureName1; }
  /// The procedure after THRU, null when not written.
  QualifiedWord *getProcedureName2() const { return ProcedureName2; }

  void setProcedureName1(QualifiedWord *Q) { ProcedureName1 = Q; }
  void setProcedureName2(QualifiedWord *Q) { ProcedureName2 = Q; }

private:
  QualifiedWord *ProcedureName1 = nullptr;
  QualifiedWord *ProcedureName2 = nullptr;
};

/// A VARYING or AFTER phrase of PERFORM: identifier FROM ... BY ...
/// UNTIL condition.
class PerformVarying : public Node {
public:
  /// The identifier that is varied.
  IdentifierExpression *getVaryingAfterIdentifier() const { return VaryingAfterIdentifier; }
  Expression *getFromIdentifier() const { return FromIdentifier; }
  Expression *getByIdentifier() const { return ByIdentifier; }
  Condition *getUntilCondition() const { return UntilCondition; }

  void setVaryingAfterIdentifier(IdentifierExpression *E) { VaryingAfterIdentifier = E; }
  void setFromIdentifier(Expression *E) { FromIdentifier = E; }
  void setByIdentifier(Expression *E) { ByIdentifier = E; }
  void setUntilCondition(Condition *C) { UntilCondition = C; }

private:
  IdentifierExpression *VaryingAfterIdentifier = nullptr;
  Expression *FromIdentifier = nullptr;
  Expression *ByIdentifier = nullptr;
  Condition *UntilCondition = nullptr;
};

/// PERFORM, out of line (a procedure range) or inline (its own statements),
/// simple, TIMES, UNTIL or VARYING.
class PerformStatement : public Statement {
public:
  PerformStatement() : Statement(STMT_PERFORM) {}

  /// The form of PERFORM; hides Statement::getType().
  PerformStmtType getType() const { return PfmType; }
  /// The WITH TEST phrase, null when not written.
  PerformTest *getTest() const { return Test; }
  /// The procedure range, null for an inline PERFORM.
  PerformProcedure *getProcedureName() const { return ProcedureName; }
  /// The count of PERFORM ... TIMES.
  Expression *getTimesInteger() const { return TimesInteger; }
  /// The condition of PERFORM ... UNTIL.
  Condition *getUntilCondition() const { return UntilCondition; }

  /// The VARYING phrase and its AFTER phrases.
  unsigned long getPhraseListSize() const { return PhraseList.size(); }
  NodeList<PerformVarying>::const_iterator getPhraseListBegin() const {
    return PhraseList.begin();
  }
  NodeList<PerformVarying>::const_iterator getPhraseListEnd() const { return PhraseList.end(); }

  /// The statements of an inline PERFORM.
  unsigned long getInlineStatementsSize() const { return InlineStatements.size(); }
  NodeList<Statement>::const_iterator getInlineStatementsBegin() const {
    return InlineStatements.begin();
  }
  NodeList<Statement>::const_iterator getInlineStatementsEnd() const {
    return InlineStatements.end();
  }

  void setType(PerformStmtType T) { PfmType = T; }
  void setTest(PerformTest *T) { Test = T; }
  void setProcedureName(PerformProcedure *P) { ProcedureName = P; }
  void setTimesInteger(Expression *E) { TimesInteger = E; }
  void setUntilCondition(Condition *C) { UntilCondition = C; }
  void addPhrase(PerformVarying *V) { PhraseList.push_back(V); }
  void addInlineStatement(Statement *S) { InlineStatements.push_back(S); }

private:
  PerformStmtType PfmType = PFM_STMT_NONE;
  PerformTest *Test = nullptr;
  PerformProcedure *ProcedureName = nullptr;
  Expression *TimesInteger = nullptr;
  Condition *UntilCondition = nullptr;
  NodeList<PerformVarying> PhraseList;
  NodeList<Statement> InlineStatements;
};

/// GO TO procedures [DEPENDING ON identifier].
class GotoStatement : public Statement {
public:
  GotoStatement() : Statement(STMT_GOTO) {}

  /// The identifier after DEPENDING ON, null when not written.
  IdentifierExpression *getDependingName() const { return DependingName; }

  /// The target procedures (empty for a GO TO set by ALTER).
  unsigned long getProcedureNameListSize() const { return ProcedureNameList.size(); }
  NodeList<QualifiedWord>::const_iterator getProcedureNameListBegin() const {
    return ProcedureNameList.begin();
  }
  NodeList<QualifiedWord>::const_iterator getProcedureNameListEnd() const {
    return ProcedureNameList.end();
  }

  void setDependingName(IdentifierExpression *E) { DependingName = E; }
  void addProcedureName(QualifiedWord *Q) { ProcedureNameList.push_back(Q); }

private:
  IdentifierExpression *DependingName = nullptr;
  NodeList<QualifiedWord> ProcedureNameList;
};

/// One "procedure TO [PROCEED TO] procedure" of ALTER.
class AlterItem : public Node {
public:
  /// The paragraph whose GO TO is altered.
  QualifiedWord *getSrcProcName() const { return SrcProcName; }
  /// The new target of that GO TO.
  QualifiedWord *getDstProcName() const { return DstProcName; }

  void setSrcProcName(QualifiedWord *Q) { SrcProcName = Q; }
  void setDstProcName(QualifiedWord *Q) { DstProcName = Q; }

private:
  QualifiedWord *SrcProcName = nullptr;
  QualifiedWord *DstProcName = nullptr;
};

/// ALTER: its transfers.
class AlterStatement : public Statement {
public:
  AlterStatement() : Statement(STMT_ALTER) {}

  unsigned long getAlterListSize() const { return AlterList.size(); }
  NodeList<AlterItem>::const_iterator getAlterListBegin() const { return AlterList.begin(); }
  NodeList<AlterItem>::const_iterator getAlterListEnd() const { return AlterList.end(); }

  void addAlter(AlterItem *A) { AlterList.push_back(A); }

private:
  NodeList<AlterItem> AlterList;
};

/// STOP RUN, or STOP literal.
class StopStatement : public Statement {
public:
  StopStatement() : Statement(STMT_STOP) {}

  /// The RUN keyword, null for STOP literal.
  Word *getRun() const { return Run; }
  /// The literal of STOP literal, null for STOP RUN.
  LiteralExpression *getLiteral() const { return Literal; }

  void setRun(Word *W) { Run = W; }
  void setLiteral(LiteralExpression *L) { Literal = L; }

private:
  Word *Run = nullptr;
  LiteralExpression *Literal = nullptr;
};

/// CONTINUE.
class ContinueStatement : public Statement {
public:
  ContinueStatement() : Statement(STMT_CONTINUE) {}
};

/// EXIT (the end point of a procedure).
class ExitStatement : public Statement {
public:
  ExitStatement() : Statement(STMT_EXIT) {}
};

/// EXIT PROGRAM.
class ExitProgramStatement : public Statement {
public:
  ExitProgramStatement() : Statement(STMT_EXIT_PROGRAM) {}
};

/// EXIT PERFORM [CYCLE].
class ExitPerformStatement : public Statement {
public:
  ExitPerformStatement() : Statement(STMT_EXIT_PERFORM) {}

  /// The CYCLE keyword, null when not written.
  Word *getCycleWord() const { return CycleWord; }
  void setCycleWord(Word *W) { CycleWord = W; }

private:
  Word *CycleWord = nullptr;
};

/// GOBACK.
class GobackStatement : public Statement {
public:
  GobackStatement() : Statement(STMT_GOBACK) {}
};

/// READY TRACE.
class ReadyTraceStatement : public Statement {
public:
  ReadyTraceStatement() : Statement(STMT_READY_TRACE) {}
};

/// RESET TRACE.
class ResetTraceStatement : public Statement {
public:
  ResetTraceStatement() : Statement(STMT_RESET_TRACE) {}
};

/// NEXT SENTENCE.
class NextSentenceStatement : public Statement {
public:
  NextSentenceStatement() : Statement(STMT_NEXT_SENTENCE) {}
};

//===----------------------------------------------------------------------===//
// Inter-program statements
//===----------------------------------------------------------------------===//

/// CALL program USING arguments [RETURNING item] with its exception phrases.
class CallStatement : public Statement {
public:
  CallStatement() : Statement(STMT_CALL) {}

  /// The called program: a literal or a data name.
  Expression *getProcedureName() const { return ProcedureName; }
  /// The RETURNING phrase, null when not written.
  Returning *getReturning() const { return Ret; }

  /// The argument groups of USING, one per passing mode as written.
  unsigned long getArgumentListSize() const { return ArgumentList.size(); }
  NodeList<Using>::const_iterator getArgumentListBegin() const { return ArgumentList.begin(); }
  NodeList<Using>::const_iterator getArgumentListEnd() const { return ArgumentList.end(); }

  /// ON EXCEPTION / ON OVERFLOW phrases and their NOT forms.
  unsigned long getExceptHandlerSize() const { return ExceptHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getExceptHandlerBegin() const {
    return ExceptHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getExceptHandlerEnd() const {
    return ExceptHandler.end();
  }

  void setProcedureName(Expression *E) { ProcedureName = E; }
  void setReturning(Returning *R) { Ret = R; }
  void addArgument(Using *U) { ArgumentList.push_back(U); }
  void addExceptHandler(ExceptionHandler *H) { ExceptHandler.push_back(H); }

private:
  Expression *ProcedureName = nullptr;
  Returning *Ret = nullptr;
  NodeList<Using> ArgumentList;
  NodeList<ExceptionHandler> ExceptHandler;
};

/// CANCEL programs.
class CancelStatement : public Statement {
public:
  CancelStatement() : Statement(STMT_CANCEL) {}

  /// The cancelled programs: literals or data names.
  unsigned long getProgramNameListSize() const { return ProgramNameList.size(); }
  NodeList<Expression>::const_iterator getProgramNameListBegin() const {
    return ProgramNameList.begin();
  }
  NodeList<Expression>::const_iterator getProgramNameListEnd() const {
    return ProgramNameList.end();
  }

  void addProgramName(Expression *E) { ProgramNameList.push_back(E); }

private:
  NodeList<Expression> ProgramNameList;
};

/// ENTRY literal [USING parameters].
class EntryStatement : public Statement {
public:
  EntryStatement() : Statement(STMT_ENTRY) {}

  /// The entry name.
  LiteralExpression *getEntryLiter() const { return EntryLiter; }
  /// The USING phrase, null when not written.
  ParamPhrase *getParameters() const { return Parameters; }

  void setEntryLiter(LiteralExpression *L) { EntryLiter = L; }
  void setParameters(ParamPhrase *P) { Parameters = P; }

private:
  LiteralExpression *EntryLiter = nullptr;
  ParamPhrase *Parameters = nullptr;
};

//===----------------------------------------------------------------------===//
// SEARCH
//===----------------------------------------------------------------------===//

/// One WHEN phrase of SEARCH: a condition and its statements.
class SearchWhen : public Node {
public:
  Condition *getCondition() const { return Cond; }

  unsigned long getStatementListSize() const { return StatementList.size(); }
  NodeList<Statement>::const_iterator getStatementListBegin() const {
    return StatementList.begin();
  }
  NodeList<Statement>::const_iterator getStatementListEnd() const {
    return StatementList.end();
  }

  void setCondition(Condition *C) { Cond = C; }
  void addStatement(Statement *S) { StatementList.push_back(S); }

private:
  Condition *Cond = nullptr;
  NodeList<Statement> StatementList;
};

/// SEARCH [ALL] table [VARYING identifier] [AT END ...] WHEN ...
class SearchStatement : public Statement {
public:
  SearchStatement() : Statement(STMT_SEARCH) {}

  /// Serial or binary; hides Statement::getType().
  SearchStmtType getType() const { return SrchType; }
  /// The ALL keyword of SEARCH ALL, null for a serial SEARCH.
  Word *getAllWord() const { return AllWord; }
  /// The table searched.
  IdentifierExpression *getSearchIdentifier() const { return SearchIdentifier; }
  /// The item after VARYING, null when not written.
  IdentifierExpression *getVaryingIdentifier() const { return VaryingIdentifier; }

  unsigned long getWhenListSize() const { return WhenList.size(); }
  NodeList<SearchWhen>::const_iterator getWhenListBegin() const { return WhenList.begin(); }
  NodeList<SearchWhen>::const_iterator getWhenListEnd() const { return WhenList.end(); }

  /// AT END phrases.
  unsigned long getAtHandlerSize() const { return AtHandler.size(); }
  NodeList<ExceptionHandler>::const_iterator getAtHandlerBegin() const {
    return AtHandler.begin();
  }
  NodeList<ExceptionHandler>::const_iterator getAtHandlerEnd() const { return AtHandler.end(); }

  void setType(SearchStmtType T) { SrchType = T; }
  void setAllWord(Word *W) { AllWord = W; }
  void setSearchIdentifier(IdentifierExpression *E) { SearchIdentifier = E; }
  void setVaryingIdentifier(IdentifierExpression *E) { VaryingIdentifier = E; }
  void addWhen(SearchWhen *W) { WhenList.push_back(W); }
  void addAtHandler(ExceptionHandler *H) { AtHandler.push_back(H); }

private:
  SearchStmtType SrchType = SRCH_STMT_NONE;
  Word *AllWord = nullptr;
  IdentifierExpression *SearchIdentifier = nullptr;
  IdentifierExpression *VaryingIdentifier = nullptr;
  NodeList<SearchWhen> WhenList;
  NodeList<ExceptionHandler> AtHandler;
};

//===----------------------------------------------------------------------===//
// Data-manipulation statements
//===----------------------------------------------------------------------===//

/// MOVE [CORRESPONDING] source TO targets.
class MoveStatement : public Statement {
public:
  MoveStatement() : Statement(STMT_MOVE) {}

  /// The sending operand.
  Expression *getSource() const { return Source; }
  /// The CORRESPONDING keyword, null when not written.
  Word *getCorrespondingWord() const { return CorrespondingWord; }

  /// The receiving items.
  unsigned long getTargetListSize() const { return TargetList.size(); }
  NodeList<IdentifierExpression>::const_iterator getTargetListBegin() const {
    return TargetList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getTargetListEnd() const {
    return TargetList.end();
  }

  void setSource(Expression *E) { Source = E; }
  void setCorrespondingWord(Word *W) { CorrespondingWord = W; }
  void addTarget(IdentifierExpression *E) { TargetList.push_back(E); }

private:
  Expression *Source = nullptr;
  Word *CorrespondingWord = nullptr;
  NodeList<IdentifierExpression> TargetList;
};

/// One "category [DATA] BY value" of INITIALIZE ... REPLACING.
class InitializeReplacingItem : public Node {
public:
  /// The category of data replaced.
  InitReplType getType() const { return Type; }
  /// The value after BY.
  Expression *getByExpr() const { return ByExpr; }

  void setType(InitReplType T) { Type = T; }
  void setByExpr(Expression *E) { ByExpr = E; }

private:
  InitReplType Type = INIT_NONE;
  Expression *ByExpr = nullptr;
};

/// INITIALIZE items [REPLACING ...].
class InitializeStatement : public Statement {
public:
  InitializeStatement() : Statement(STMT_INITIALIZE) {}

  /// The items initialised.
  unsigned long getIdentifierListSize() const { return IdentifierList.size(); }
  NodeList<IdentifierExpression>::const_iterator getIdentifierListBegin() const {
    return IdentifierList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getIdentifierListEnd() const {
    return IdentifierList.end();
  }

  /// The REPLACING items.
  unsigned long getReplacingListSize() const { return ReplacingList.size(); }
  NodeList<InitializeReplacingItem>::const_iterator getReplacingListBegin() const {
    return ReplacingList.begin();
  }
  NodeList<InitializeReplacingItem>::const_iterator getReplacingListEnd() const {
    return ReplacingList.end();
  }

  void addIdentifier(IdentifierExpression *E) { IdentifierList.push_back(E); }
  void addReplacing(InitializeReplacingItem *I) { ReplacingList.push_back(I); }

private:
  NodeList<IdentifierExpression> IdentifierList;
  NodeList<InitializeReplacingItem> ReplacingList;
};

/// The sending side of a SET item: the value after TO, UP BY or DOWN BY.
class SetToValue : public Node {
public:
  Expression *getToExpr() const { return ToExpr; }
  void setToExpr(Expression *E) { ToExpr = E; }

private:
  Expression *ToExpr = nullptr;
};

/// One "receivers TO / UP BY / DOWN BY value" of SET, or one
/// "condition-names TO TRUE".
class SetItem : public Node {
public:
  /// TO, UP BY or DOWN BY.
  SetItemType getType() const { return Type; }
  /// The sending value, null when not written.
  SetToValue *getToValue() const { return ToValue; }

  /// The receiving items.
  unsigned long getSetListSize() const { return SetList.size(); }
  NodeList<IdentifierExpression>::const_iterator getSetListBegin() const {
    return SetList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getSetListEnd() const { return SetList.end(); }

  /// The receiving condition names (SET ... TO TRUE).
  unsigned long getCondListSize() const { return CondList.size(); }
  NodeList<Condition>::const_iterator getCondListBegin() const { return CondList.begin(); }
  NodeList<Condition>::const_iterator getCondListEnd() const { return CondList.end(); }

  void setType(SetItemType T) { Type = T; }
  void setToValue(SetToValue *V) { ToValue = V; }
  void addSet(IdentifierExpression *E) { SetList.push_back(E); }
  void addCond(Condition *C) { CondList.push_back(C); }

private:
  SetItemType Type = SET_ITEM_NONE;
  SetToValue *ToValue = nullptr;
  NodeList<IdentifierExpression> SetList;
  NodeList<Condition> CondList;
};

/// SET: its items.
class SetStatement : public Statement {
public:
  SetStatement() : Statement(STMT_SET) {}

  unsigned long getItemSize() const { return Item.size(); }
  NodeList<SetItem>::const_iterator getItemBegin() const { return Item.begin(); }
  NodeList<SetItem>::const_iterator getItemEnd() const { return Item.end(); }

  void addItem(SetItem *I) { Item.push_back(I); }

private:
  NodeList<SetItem> Item;
};

} // namespace korvid

#endif // KORVID_PARSETREE_PROCEDURE_H
