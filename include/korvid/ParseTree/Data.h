//===- korvid/ParseTree/Data.h - Data division and data entries -*- C++ -*-===//
//
// The DATA DIVISION with its sections, the data description entries that the
// sections hold, and the clauses of a data description entry. The parser
// arranges the entries of a section into a hierarchy by level number: each
// ordinary entry is an ExDataDescription whose subordinate entries are its
// children, and which carries the layout the tree computed for the item
// (identifier, size, offset, usage, category). EXEC SQL / EXEC CICS blocks
// written among the entries are ExecData entries of the same list.
//
// File descriptions and their clauses are in File.h, report descriptions and
// report group entries in Report.h.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_DATA_H
#define KORVID_PARSETREE_DATA_H

#include "korvid/ParseTree/Node.h"

#include <cstdint>
#include <string>
#include <utility>

namespace korvid {

//===----------------------------------------------------------------------===//
// Enumerations
//===----------------------------------------------------------------------===//

/// Which kind of entry a DataDescription is, and so which class it is.
enum DataDescType : int32_t {
  DESC_NONE = 0,
  /// An ordinary level-number entry (ExDataDescription).
  DESC_NORMAL = 1,
  /// An IDMS record copied into the data division (IDMSDataDescription).
  DESC_IDMS = 2,
  /// A report group entry (ReportDataDescription).
  DESC_REPORT = 3,
  /// Embedded EXEC SQL, EXEC SQL INCLUDE and EXEC CICS blocks (ExecData).
  DESC_EXEC_SQL = 4,
  DESC_EXEC_SQL_INCLUDE = 5,
  DESC_EXEC_CICS = 6,
  /// A string-reference description (StrReferDescription).
  DESC_STRING = 7,
};

/// The category of a data item, as resolved from its picture and usage.
enum DataCategory : int32_t {
  DC_NONE = 0,
  DC_ALPHABETIC = 1,
  DC_ALPHANUMERIC = 2,
  DC_NUMERIC = 3,
  DC_ALPHANUMERIC_EDITED = 4,
  DC_NUMERIC_EDITED = 5,
  DC_NATIONAL = 6,
  DC_NATIONAL_EDITED = 7,
  DC_DBCS = 8,
  DC_BOOLEAN = 9,
  DC_INDEX = 10,
  DC_POINTER = 11,
  DC_GROUP = 12,
};

/// The section of the data division in which a data item is described.
enum DataArea : int32_t {
  DATA_AREA_NONE = 0,
  DATA_AREA_FILE = 1,
  DATA_AREA_WORKING = 2,
  DATA_AREA_LOCAL = 3,
  DATA_AREA_LINKAGE = 4,
  DATA_AREA_REPORT = 5,
};

/// The usage of a data item, resolved from its own USAGE clause or the one
/// of the group that holds it.
enum UsageType : int32_t {
  USAGE_NONE = 0,
  USAGE_BINARY = 1,
  USAGE_COMP = 2,
  USAGE_COMP1 = 3,
  USAGE_COMP2 = 4,
  USAGE_COMP3 = 5,
  USAGE_COMP4 = 6,
  USAGE_COMP5 = 7,
  USAGE_DISPLAY = 8,
  USAGE_DISPLAY1 = 9,
  USAGE_INDEX = 10,
  USAGE_NATIONAL = 11,
  USAGE_PACKED_DECIMAL = 12,
  USAGE_POINTER = 13,
  USAGE_PROC_POINTER = 14,
  USAGE_FUNC_POINTER = 15,
  USAGE_BIT = 16,
};

/// The order of a key: of an OCCURS key, or of a SORT / MERGE key.
enum SortKeyType : int32_t {
  SRT_KEY_NONE = 0,
  SRT_KEY_ASC = 1,
  SRT_KEY_DSC = 2,
};

//===----------------------------------------------------------------------===//
// The division and its sections
//===----------------------------------------------------------------------===//

/// The DATA DIVISION: one pointer per section, each null when not written.
class DataDivision : public Node {
public:
  ReportSection *getSectionReport() const { return SectionReport; }
  FileSection *getSectionFile() const { return SectionFile; }
  WorkingSection *getSectionWork() const { return SectionWork; }
  LocalSection *getSectionLocal() const { return SectionLocal; }
  LinkageSection *getSectionLink() const { return SectionLink; }
  IDMSSchemaSection *getSectionSchema() const { return SectionSchema; }
  IDMSMapSection *getSectionMap() const { return SectionMap; }

  void setSectionReport(ReportSection *S) { SectionReport = S; }
  void setSectionFile(FileSection *S) { SectionFile = S; }
  void setSectionWork(WorkingSection *S) { SectionWork = S; }
  void setSectionLocal(LocalSection *S) { SectionLocal = S; }
  void setSectionLink(LinkageSection *S) { SectionLink = S; }
  void setSectionSchema(IDMSSchemaSection *S) { SectionSchema = S; }
  void setSectionMap(IDMSMapSection *S) { SectionMap = S; }

private:
  ReportSection *SectionReport = nullptr;
  FileSection *SectionFile = nullptr;
  WorkingSection *SectionWork = nullptr;
  LocalSection *SectionLocal = nullptr;
  LinkageSection *SectionLink = nullptr;
  IDMSSchemaSection *SectionSchema = nullptr;
  IDMSMapSection *SectionMap = nullptr;
};

/// The WORKING-STORAGE SECTION: its top-level entries in source order (level
/// 01 and 77 entries and EXEC blocks; subordinate entries hang below them).
class WorkingSection : public Node {
public:
  unsigned long getOrderedListSize() const { return OrderedList.size(); }
  NodeList<DataDescription>::const_iterator getOrderedListBegin() const {
    return OrderedList.begin();
  }
  NodeList<DataDescription>::const_iterator getOrderedListEnd() const {
    return OrderedList.end();
  }
  void addOrdered(DataDescription *D) { OrderedList.push_back(D); }

private:
  NodeList<DataDescription> OrderedList;
};

/// The LOCAL-STORAGE SECTION: its top-level entries in source order.
class LocalSection : public Node {
public:
  unsigned long getOrderedListSize() const { return OrderedList.size(); }
  NodeList<DataDescription>::const_iterator getOrderedListBegin() const {
    return OrderedList.begin();
  }
  NodeList<DataDescription>::const_iterator getOrderedListEnd() const {
    return OrderedList.end();
  }
  void addOrdered(DataDescription *D) { OrderedList.push_back(D); }

private:
  NodeList<DataDescription> OrderedList;
};

/// The LINKAGE SECTION: its top-level entries in source order.
class LinkageSection : public Node {
public:
  unsigned long getOrderedListSize() const { return OrderedList.size(); }
  NodeList<DataDescription>::const_iterator getOrderedListBegin() const {
    return OrderedList.begin();
  }
  NodeList<DataDescription>::const_iterator getOrderedListEnd() const {
    return OrderedList.end();
  }
  void addOrdered(DataDescription *D) { OrderedList.push_back(D); }

private:
  NodeList<DataDescription> OrderedList;
};

/// The FILE SECTION: its FD and SD entries in source order.
class FileSection : public Node {
public:
  unsigned long getFileSectionSize() const { return FileList.size(); }
  NodeList<FileDescription>::const_iterator getFileSectionBegin() const {
    return FileList.begin();
  }
  NodeList<FileDescription>::const_iterator getFileSectionEnd() const {
    return FileList.end();
  }
  void addFileDescription(FileDescription *F) { FileList.push_back(F); }

private:
  NodeList<FileDescription> FileList;
};

/// The REPORT SECTION: its RD entries in source order.
class ReportSection : public Node {
public:
  unsigned long getDescListReportSize() const { return DescListReport.size(); }
  NodeList<ReportDescription>::const_iterator getDescListReportBegin() const {
    return DescListReport.begin();
  }
  NodeList<ReportDescription>::const_iterator getDescListReportEnd() const {
    return DescListReport.end();
  }
  void addReportDescription(ReportDescription *R) { DescListReport.push_back(R); }

private:
  NodeList<ReportDescription> DescListReport;
};

/// The IDMS SCHEMA SECTION (DB statement naming the subschema).
class IDMSSchemaSection : public Node {
public:
  Word *getSubschemaName() const { return SubschemaName; }
  Word *getSchemaName() const { return SchemaName; }
  void setSubschemaName(Word *W) { SubschemaName = W; }
  void setSchemaName(Word *W) { SchemaName = W; }

private:
  Word *SubschemaName = nullptr;
  Word *SchemaName = nullptr;
};

/// The IDMS MAP SECTION (the maps a DC program uses).
class IDMSMapSection : public Node {
public:
  unsigned long getMapNameListSize() const { return MapNameList.size(); }
  NodeList<Word>::const_iterator getMapNameListBegin() const { return MapNameList.begin(); }
  NodeList<Word>::const_iterator getMapNameListEnd() const { return MapNameList.end(); }
  void addMapName(Word *W) { MapNameList.push_back(W); }

private:
  NodeList<Word> MapNameList;
};

/// The IDMS-CONTROL SECTION (the protocol of the IDMS precompiler).
class IDMSControlSection : public Node {
public:
  Word *getProtocolMode() const { return ProtocolMode; }
  void setProtocolMode(Word *W) { ProtocolMode = W; }

private:
  Word *ProtocolMode = nullptr;
};

//===----------------------------------------------------------------------===//
// Data description entries
//===----------------------------------------------------------------------===//

/// A data description entry: a level number with its clauses, or one of the
/// other entry kinds that stand among the entries (see DataDescType). Every
/// clause getter returns null when the clause is not written.
class DataDescription : public Node {
public:
  explicit DataDescription(DataDescType T = DESC_NONE) : DescType(T) {}

  DataDescType getDescType() const { return DescType; }
  /// The level-number word as written (01, 05, 66, 77, 88, ...).
  Word *getLevelNum() const { return LevelNum; }
  /// The data name; null when the entry has none.
  Word *getDataName() const { return DataName; }

  ClauseRedefines *getRedefines() const { return Redefines; }
  ClauseBlankWhenZero *getBlankZero() const { return BlankZero; }
  ClauseExternal *getExternal() const { return External; }
  ClauseGlobal *getGlobal() const { return Global; }
  ClauseGroupUsage *getGroupUsage() const { return GroupUsage; }
  ClauseJustified *getJustified() const { return Justified; }
  ClauseOccurs *getOccurs() const { return Occurs; }
  ClausePicture *getPicture() const { return Picture; }
  ClauseSign *getSign() const { return Sign; }
  ClauseSynchronized *getSynchronized() const { return Synchronized; }
  ClauseBasedOn *getBasedOn() const { return BasedOn; }
  ClauseCharacterType *getCharacterType() const { return CharacterType; }
  ClausePrintingPosition *getPrintingPos() const { return PrintingPos; }
  ClauseFujitsuType *getFujitsuType() const { return FujitsuType; }
  ClauseTypeDef *getTypeDef() const { return TypeDef; }
  ClauseUsage *getUsage() const { return Usage; }
  ClauseValue *getValue() const { return Value; }
  ClauseRenames *getRenames() const { return Renames; }
  ClauseDateFormat *getDateFormat() const { return DateFormat; }
  ClauseSubsLength *getSubsLength() const { return SubsLength; }
  ClauseXMLSchema *getXMLSchema() const { return XMLSchema; }

  void setDescType(DataDescType T) { DescType = T; }
  void setLevelNum(Word *W) { LevelNum = W; }
  void setDataName(Word *W) { DataName = W; }
  void setRedefines(ClauseRedefines *C) { Redefines = C; }
  void setBlankZero(ClauseBlankWhenZero *C) { BlankZero = C; }
  void setExternal(ClauseExternal *C) { External = C; }
  void setGlobal(ClauseGlobal *C) { Global = C; }
  void setGroupUsage(ClauseGroupUsage *C) { GroupUsage = C; }
  void setJustified(ClauseJustified *C) { Justified = C; }
  void setOccurs(ClauseOccurs *C) { Occurs = C; }
  void setPicture(ClausePicture *C) { Picture = C; }
  void setSign(ClauseSign *C) { Sign = C; }
  void setSynchronized(ClauseSynchronized *C) { Synchronized = C; }
  void setBasedOn(ClauseBasedOn *C) { BasedOn = C; }
  void setCharacterType(ClauseCharacterType *C) { CharacterType = C; }
  void setPrintingPos(ClausePrintingPosition *C) { PrintingPos = C; }
  void setFujitsuType(ClauseFujitsuType *C) { FujitsuType = C; }
  void setTypeDef(ClauseTypeDef *C) { TypeDef = C; }
  void setUsage(ClauseUsage *C) { Usage = C; }
  void setValue(ClauseValue *C) { Value = C; }
  void setRenames(ClauseRenames *C) { Renames = C; }
  void setDateFormat(ClauseDateFormat *C) { DateFormat = C; }
  void setSubsLength(ClauseSubsLength *C) { SubsLength = C; }
  void setXMLSchema(ClauseXMLSchema *C) { XMLSchema = C; }

private:
  DataDescType DescType;
  Word *LevelNum = nullptr;
  Word *DataName = nullptr;
  ClauseRedefines *Redefines = nullptr;
  ClauseBlankWhenZero *BlankZero = nullptr;
  ClauseExternal *External = nullptr;
  ClauseGlobal *Global = nullptr;
  ClauseGroupUsage *GroupUsage = nullptr;
  ClauseJustified *Justified = nullptr;
  ClauseOccurs *Occurs = nullptr;
  ClausePicture *Picture = nullptr;
  ClauseSign *Sign = nullptr;
  ClauseSynchronized *Synchronized = nullptr;
  ClauseBasedOn *BasedOn = nullptr;
  ClauseCharacterType *CharacterType = nullptr;
  ClausePrintingPosition *PrintingPos = nullptr;
  ClauseFujitsuType *FujitsuType = nullptr;
  ClauseTypeDef *TypeDef = nullptr;
  ClauseUsage *Usage = nullptr;
  ClauseValue *Value = nullptr;
  ClauseRenames *Renames = nullptr;
  ClauseDateFormat *DateFormat = nullptr;
  ClauseSubsLength *SubsLength = nullptr;
  ClauseXMLSchema *XMLSchema = nullptr;
};

/// An ordinary data description entry (DESC_NORMAL) together with what the
/// tree computed for the item: its identifier, its size and offset in bytes,
/// its resolved usage and category, and its subordinate entries.
///
/// getLevelNum() here is the level as a number and hides the level-number
/// word of DataDescription, which stays reachable as
/// DataDescription::getLevelNum().
class ExDataDescription : public DataDescription {
public:
  ExDataDescription() : DataDescription(DESC_NORMAL) {}

  ExNodeType getExNodeType() override { return EX_NODE_TYPE_EXDATADESCRIPTION; }

  /// The item's identifier, unique within the program.
  uint32_t getID() const { return ID; }
  /// Storage size in bytes.
  unsigned getSize() const { return Size; }
  /// Offset in bytes from the start of the record (level 01/77 item).
  unsigned getOffSet() const { return OffSet; }
  /// The level number as a number (05 is 5).
  int getLevelNum() const { return LevelNumber; }
  UsageType getUsageTy() const { return UsageTy; }
  DataCategory getDataCategory() const { return Category; }
  DataArea getDataArea() const { return Area; }
  /// Whether the picture is signed (has an S).
  bool getPictureSign() const { return PictureSign; }
  /// The entry this one is subordinate to; null for a top-level entry.
  ExDataDescription *getParent() const { return Parent; }

  /// The subordinate entries, in source order.
  unsigned long getChildrenSize() const { return Children.size(); }
  NodeList<ExDataDescription>::const_iterator getChildrenBegin() const {
    return Children.begin();
  }
  NodeList<ExDataDescription>::const_iterator getChildrenEnd() const {
    return Children.end();
  }

  void setID(uint32_t V) { ID = V; }
  void setSize(unsigned V) { Size = V; }
  void setOffSet(unsigned V) { OffSet = V; }
  using DataDescription::setLevelNum;
  void setLevelNum(int V) { LevelNumber = V; }
  void setUsageTy(UsageType T) { UsageTy = T; }
  void setDataCategory(DataCategory C) { Category = C; }
  void setDataArea(DataArea A) { Area = A; }
  void setPictureSign(bool B) { PictureSign = B; }
  void setParent(ExDataDescription *P) { Parent = P; }
  void addChild(ExDataDescription *C) { Children.push_back(C); }

private:
  uint32_t ID = 0;
  unsigned Size = 0;
  unsigned OffSet = 0;
  int LevelNumber = 0;
  UsageType UsageTy = USAGE_NONE;
  DataCategory Category = DC_NONE;
  DataArea Area = DATA_AREA_NONE;
  bool PictureSign = false;
  ExDataDescription *Parent = nullptr;
  NodeList<ExDataDescription> Children;
};

/// An EXEC SQL, EXEC SQL INCLUDE or EXEC CICS block written among the data
/// entries (DESC_EXEC_SQL, DESC_EXEC_SQL_INCLUDE, DESC_EXEC_CICS).
class ExecData : public DataDescription {
public:
  explicit ExecData(DataDescType T = DESC_EXEC_SQL) : DataDescription(T) {}

  /// The whole block, words separated by single spaces, from EXEC to
  /// END-EXEC inclusive.
  std::string getSqlStr() const { return SqlStr; }
  void setSqlStr(std::string S) { SqlStr = std::move(S); }

private:
  std::string SqlStr;
};

/// A string-reference description entry (DESC_STRING).
class StrReferDescription : public DataDescription {
public:
  StrReferDescription() : DataDescription(DESC_STRING) {}
};

/// An IDMS record description brought into the data division (DESC_IDMS).
class IDMSDataDescription : public DataDescription {
public:
  IDMSDataDescription() : DataDescription(DESC_IDMS) {}

  ClauseIDMSRecord *getIDMSRecord() const { return IDMSRecord; }
  void setIDMSRecord(ClauseIDMSRecord *C) { IDMSRecord = C; }

private:
  ClauseIDMSRecord *IDMSRecord = nullptr;
};

/// The COPY IDMS record clause of an IDMS entry: the record's name.
class ClauseIDMSRecord : public Node {
public:
  Word *getRecordName() const { return RecordName; }
  void setRecordName(Word *W) { RecordName = W; }

private:
  Word *RecordName = nullptr;
};

//===----------------------------------------------------------------------===//
// Clauses of a data description entry
//===----------------------------------------------------------------------===//

/// The REDEFINES clause.
class ClauseRedefines : public Node {
public:
  /// The redefined item.
  IdentifierExpression *getData() const { return Data; }
  void setData(IdentifierExpression *E) { Data = E; }

private:
  IdentifierExpression *Data = nullptr;
};

/// The BLANK WHEN ZERO clause; its presence is all it says.
class ClauseBlankWhenZero : public Node {};

/// The EXTERNAL clause of a data entry; its presence is all it says.
class ClauseExternal : public Node {};

/// The GLOBAL clause of a data entry; its presence is all it says.
class ClauseGlobal : public Node {};

/// The GROUP-USAGE clause: the usage word (NATIONAL, ...).
class ClauseGroupUsage : public Node {
public:
  Word *getUsageWord() const { return UsageWord; }
  void setUsageWord(Word *W) { UsageWord = W; }

private:
  Word *UsageWord = nullptr;
};

/// The JUSTIFIED clause.
class ClauseJustified : public Node {
public:
  /// The word RIGHT, null when not written.
  Word *getRightWord() const { return RightWord; }
  void setRightWord(Word *W) { RightWord = W; }

private:
  Word *RightWord = nullptr;
};

/// The PICTURE clause.
class ClausePicture : public Node {
public:
  /// The picture character-string as one word (S9(5)V99, X(10), ...).
  Word *getCharStringWord() const { return CharStringWord; }
  void setCharStringWord(Word *W) { CharStringWord = W; }

private:
  Word *CharStringWord = nullptr;
};

/// The SIGN clause: LEADING or TRAILING, optionally SEPARATE.
class ClauseSign : public Node {
public:
  Word *getLeadingWord() const { return LeadingWord; }
  Word *getTrailingWord() const { return TrailingWord; }
  Word *getSeparateWord() const { return SeparateWord; }

  void setLeadingWord(Word *W) { LeadingWord = W; }
  void setTrailingWord(Word *W) { TrailingWord = W; }
  void setSeparateWord(Word *W) { SeparateWord = W; }

private:
  Word *LeadingWord = nullptr;
  Word *TrailingWord = nullptr;
  Word *SeparateWord = nullptr;
};

/// The SYNCHRONIZED clause.
class ClauseSynchronized : public Node {
public:
  /// The word LEFT or RIGHT, null when neither is written.
  Word *getLeftRightWord() const { return LeftRightWord; }
  void setLeftRightWord(Word *W) { LeftRightWord = W; }

private:
  Word *LeftRightWord = nullptr;
};

/// The BASED ON clause.
class ClauseBasedOn : public Node {
public:
  /// The item the entry is based on.
  IdentifierExpression *getData() const { return Data; }
  void setData(IdentifierExpression *E) { Data = E; }

private:
  IdentifierExpression *Data = nullptr;
};

/// The CHARACTER TYPE clause: the mode, the mnemonic names of the character
/// type and of the printing modes, and the DEPENDING ON items.
class ClauseCharacterType : public Node {
public:
  Word *getModeType() const { return ModeType; }
  Word *getByMnemonicName() const { return ByMnemonicName; }
  Word *getMnemonicName() const { return MnemonicName; }
  IdentifierExpression *getDataName1() const { return DataName1; }
  IdentifierExpression *getDataName2() const { return DataName2; }

  /// The printing-mode names of the first choice.
  unsigned long getMnemonicNameList1Size() const { return MnemonicNameList1.size(); }
  NodeList<Word>::const_iterator getMnemonicNameList1Begin() const {
    return MnemonicNameList1.begin();
  }
  NodeList<Word>::const_iterator getMnemonicNameList1End() const {
    return MnemonicNameList1.end();
  }
  /// The printing-mode names of the OR choice.
  unsigned long getMnemonicNameList2Size() const { return MnemonicNameList2.size(); }
  NodeList<Word>::const_iterator getMnemonicNameList2Begin() const {
    return MnemonicNameList2.begin();
  }
  NodeList<Word>::const_iterator getMnemonicNameList2End() const {
    return MnemonicNameList2.end();
  }

  void setModeType(Word *W) { ModeType = W; }
  void setByMnemonicName(Word *W) { ByMnemonicName = W; }
  void setMnemonicName(Word *W) { MnemonicName = W; }
  void setDataName1(IdentifierExpression *E) { DataName1 = E; }
  void setDataName2(IdentifierExpression *E) { DataName2 = E; }
  void addMnemonicName1(Word *W) { MnemonicNameList1.push_back(W); }
  void addMnemonicName2(Word *W) { MnemonicNameList2.push_back(W); }

private:
  Word *ModeType = nullptr;
  Word *ByMnemonicName = nullptr;
  Word *MnemonicName = nullptr;
  IdentifierExpression *DataName1 = nullptr;
  IdentifierExpression *DataName2 = nullptr;
  NodeList<Word> MnemonicNameList1;
  NodeList<Word> MnemonicNameList2;
};

/// The PRINTING POSITION clause.
class ClausePrintingPosition : public Node {
public:
  Expression *getPositionExpr() const { return PositionExpr; }
  Word *getUnitName() const { return UnitName; }
  void setPositionExpr(Expression *E) { PositionExpr = E; }
  void setUnitName(Word *W) { UnitName = W; }

private:
  Expression *PositionExpr = nullptr;
  Word *UnitName = nullptr;
};

/// The Fujitsu TYPE clause: the name of the type the entry is declared with.
class ClauseFujitsuType : public Node {
public:
  Word *getTypeName() const { return TypeName; }
  void setTypeName(Word *W) { TypeName = W; }

private:
  Word *TypeName = nullptr;
};

/// The TYPEDEF clause.
class ClauseTypeDef : public Node {
public:
  /// The word STRONG, null when not written.
  Word *getStrongWord() const { return StrongWord; }
  void setStrongWord(Word *W) { StrongWord = W; }

private:
  Word *StrongWord = nullptr;
};

/// The USAGE clause.
class ClauseUsage : public Node {
public:
  /// The usage word (COMP-3, COMPUTATIONAL, DISPLAY, POINTER, ...).
  Word *getUsageDescWord() const { return UsageDescWord; }
  void setUsageDescWord(Word *W) { UsageDescWord = W; }

private:
  Word *UsageDescWord = nullptr;
};

/// The RENAMES clause of a level-66 entry: the first item and, for a THRU
/// range, the last one.
class ClauseRenames : public Node {
public:
  IdentifierExpression *getFromData() const { return FromData; }
  IdentifierExpression *getThruData() const { return ThruData; }
  void setFromData(IdentifierExpression *E) { FromData = E; }
  void setThruData(IdentifierExpression *E) { ThruData = E; }

private:
  IdentifierExpression *FromData = nullptr;
  IdentifierExpression *ThruData = nullptr;
};

/// The DATE FORMAT clause: the date pattern.
class ClauseDateFormat : public Node {
public:
  Word *getPatternWord() const { return PatternWord; }
  void setPatternWord(Word *W) { PatternWord = W; }

private:
  Word *PatternWord = nullptr;
};

/// The subscript-length clause: the length of the entry's subscripts.
class ClauseSubsLength : public Node {
public:
  NumericLiteralExpression *getLength() const { return Length; }
  void setLength(NumericLiteralExpression *E) { Length = E; }

private:
  NumericLiteralExpression *Length = nullptr;
};

/// The XML-SCHEMA clause: the schema name.
class ClauseXMLSchema : public Node {
public:
  Word *getSchemaName() const { return SchemaName; }
  void setSchemaName(Word *W) { SchemaName = W; }

private:
  Word *SchemaName = nullptr;
};

//===----------------------------------------------------------------------===//
// OCCURS and VALUE
//===----------------------------------------------------------------------===//

/// One ASCENDING / DESCENDING KEY phrase of an OCCURS clause.
class Key : public Node {
public:
  /// The word ASCENDING or DESCENDING.
  Word *getAscDscWord() const { return AscDscWord; }
  SortKeyType getType() const { return Type; }

  /// The key items.
  unsigned long getDataListSize() const { return DataList.size(); }
  NodeList<IdentifierExpression>::const_iterator getDataListBegin() const {
    return DataList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getDataListEnd() const {
    return DataList.end();
  }

  void setAscDscWord(Word *W) { AscDscWord = W; }
  void setType(SortKeyType T) { Type = T; }
  void addData(IdentifierExpression *E) { DataList.push_back(E); }

private:
  Word *AscDscWord = nullptr;
  SortKeyType Type = SRT_KEY_NONE;
  NodeList<IdentifierExpression> DataList;
};

/// The INDEXED BY phrase of an OCCURS clause.
class Index : public Node {
public:
  /// The index names.
  unsigned long getDataListSize() const { return DataList.size(); }
  NodeList<IdentifierExpression>::const_iterator getDataListBegin() const {
    return DataList.begin();
  }
  NodeList<IdentifierExpression>::const_iterator getDataListEnd() const {
    return DataList.end();
  }
  void addData(IdentifierExpression *E) { DataList.push_back(E); }

private:
  NodeList<IdentifierExpression> DataList;
};

/// The OCCURS clause: the number of occurrences (MIN null for a fixed count),
/// the DEPENDING ON item, the keys and the indexes.
class ClauseOccurs : public Node {
public:
  NumericLiteralExpression *getMin() const { return Min; }
  NumericLiteralExpression *getMax() const { return Max; }
  /// The OCCURS DEPENDING ON item.
  IdentifierExpression *getOdoName() const { return OdoName; }
  Index *getIndexed() const { return Indexed; }

  unsigned long getKeysSize() const { return Keys.size(); }
  NodeList<Key>::const_iterator getKeysBegin() const { return Keys.begin(); }
  NodeList<Key>::const_iterator getKeysEnd() const { return Keys.end(); }

  void setMin(NumericLiteralExpression *E) { Min = E; }
  void setMax(NumericLiteralExpression *E) { Max = E; }
  void setOdoName(IdentifierExpression *E) { OdoName = E; }
  void setIndexed(Index *I) { Indexed = I; }
  void addKey(Key *K) { Keys.push_back(K); }

private:
  NumericLiteralExpression *Min = nullptr;
  NumericLiteralExpression *Max = nullptr;
  IdentifierExpression *OdoName = nullptr;
  Index *Indexed = nullptr;
  NodeList<Key> Keys;
};

/// One value of a VALUE clause: a single literal, or a range when the
/// second literal (after THRU) is present.
class PhraseValue : public Node {
public:
  LiteralExpression *getLiteral1() const { return Literal1; }
  LiteralExpression *getLiteral2() const { return Literal2; }
  void setLiteral1(LiteralExpression *E) { Literal1 = E; }
  void setLiteral2(LiteralExpression *E) { Literal2 = E; }

private:
  LiteralExpression *Literal1 = nullptr;
  LiteralExpression *Literal2 = nullptr;
};

/// The VALUE clause: its values in source order.
class ClauseValue : public Node {
public:
  unsigned long getPhraseValSize() const { return PhraseVal.size(); }
  NodeList<PhraseValue>::const_iterator getPhraseValBegin() const {
    return PhraseVal.begin();
  }
  NodeList<PhraseValue>::const_iterator getPhraseValEnd() const { return PhraseVal.end(); }
  void addPhraseVal(PhraseValue *P) { PhraseVal.push_back(P); }

private:
  NodeList<PhraseValue> PhraseVal;
};

} // namespace korvid

#endif // KORVID_PARSETREE_DATA_H
