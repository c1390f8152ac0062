//===- korvid/XMLHandler.h - XML document builder ---------------*- C++ -*-===//
//
// The document builder the emitter writes through: a thin layer over a
// tinyxml2 document that adds the return-element slot, source locations kept
// beside each element, insertion of children in source order, and the table
// of file names that the locations refer to.
//
// Locations. attributeLoc() does not store the eight location values as
// tinyxml2 attributes (that would cost a linear search and two allocations
// per value). They are kept in a compact record beside the element and
// written by saveFile() after the element's ordinary attributes, in the
// order "lbl", "lbc", "lel", "lec", "lblo", "lbco", "lelo", "leco", followed
// by two file marks:
//   "lfid"   number of the file the expanded position refers to,
//   "lfido"  number of the file the as-written position refers to,
// numbers of the file table (the FILEINFO and COPYBOOK entries of a program
// document carry the same numbers in their "FILE_ID").
//
// Ordering. appendChildOrdered() keeps children in source order by the key
// (begin line, begin column) of the expanded source: the key of an element
// stamped with attributeLoc(), or else the values of its ordinary "lbl" and
// "lbc" attributes (list containers set those by name). A new child goes
// after the last existing child whose key is less than or equal to its own
// (so equal keys keep their order of arrival), or first if there is none.
// A child without any location, and any non-element child (text, comment),
// has the key (0, 0): appended ordered, it goes first; appended last, it is
// never passed over, and what is appended ordered after it stays after it.
//
// Errors. The builder never throws. saveFile() records why a file could not
// be written; getSaveError() tells it.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_XMLHANDLER_H
#define KORVID_XMLHANDLER_H

#include <map>
#include <memory>
#include <string>

namespace tinyxml2 {
class XMLDocument;
class XMLElement;
class XMLNode;
} // namespace tinyxml2

namespace korvid {

class XMLHandler {
public:
  XMLHandler();
  ~XMLHandler();
  XMLHandler(const XMLHandler &) = delete;
  XMLHandler &operator=(const XMLHandler &) = delete;

  // --- Elements and the return-element slot --------------------------------
  /// A new element named \p Tag, not yet in the tree.
  tinyxml2::XMLElement *newElement(const char *Tag);
  /// A new element named \p Tag, not yet in the tree, which also becomes the
  /// current result.
  tinyxml2::XMLElement *newRetElement(const char *Tag);
  void setRetElement(tinyxml2::XMLElement *E) { RetElement = E; }
  tinyxml2::XMLElement *getRetElement() const { return RetElement; }
  /// A new text node holding a copy of \p Text, not yet in the tree.
  tinyxml2::XMLNode *newText(const char *Text);

  // --- Attributes --------------------------------------------------------------
  void setAttribute(tinyxml2::XMLElement *E, const char *Name,
                    const char *Value);
  void setAttribute(tinyxml2::XMLElement *E, const char *Name, int Value);
  void setAttribute(tinyxml2::XMLElement *E, const char *Name,
                    unsigned int Value);
  void setAttribute(tinyxml2::XMLElement *E, const char *Name,
                    unsigned long Value);

  /// Stamps \p E with a node's location: the extent in the expanded source
  /// and in the source as written, with the file of each. Both file names
  /// enter the file table. Stamping an element again replaces its location.
  void attributeLoc(tinyxml2::XMLElement *E, unsigned BeginLine,
                    unsigned BeginColumn, unsigned EndLine, unsigned EndColumn,
                    std::string FileName, unsigned BeginLineOrg,
                    unsigned BeginColumnOrg, unsigned EndLineOrg,
                    unsigned EndColumnOrg, std::string FileNameOrg);

  /// From now on saveFile() writes no location attributes: neither the
  /// stamped locations nor ordinary attributes named like them ("lbl",
  /// "lbc", "lel", "lec", "lblo", "lbco", "lelo", "leco", "lfid", "lfido").
  /// Locations are still recorded, so ordering is unaffected.
  void removeAttributeLoc() { StripLocations = true; }

  // --- Building the tree ---------------------------------------------------------
  /// Puts \p Child under \p Parent in source order (see the file comment).
  void appendChildOrdered(tinyxml2::XMLElement *Child,
                          tinyxml2::XMLElement *Parent);
  /// Puts \p Child after all existing children of \p Parent. Appending a
  /// node to itself leaves the tree unchanged.
  void appendChildLast(tinyxml2::XMLNode *Child, tinyxml2::XMLNode *Parent);
  /// Makes \p E a top-level node of the document, after those already there.
  void appendElementToDoc(tinyxml2::XMLElement *E);
  /// Adds a top-level comment to the document.
  void appendCommentToDoc(const char *Text);

  // --- Saving --------------------------------------------------------------------
  /// Writes the document, with an XML declaration and indentation, to
  /// \p Path. On failure the reason is kept for getSaveError().
  void saveFile(const char *Path);
  /// Whether the last saveFile() wrote its file completely.
  bool saveSucceeded() const { return SaveError.empty(); }
  /// Why the last saveFile() failed ("" after a success or before any save).
  const std::string &getSaveError() const { return SaveError; }
  /// The document as text, as saveFile() would write it.
  std::string toString() const;

  // --- File table ----------------------------------------------------------------
  /// The number given to \p FileName (1, 2, ... by first appearance), or 0
  /// when the table does not hold it.
  int getFileId(std::string FileName) const;
  /// Drops \p FileName from the table; numbers of the others do not change.
  void deleteFileName(std::string FileName);
  /// Every file name the table holds, with its number.
  std::map<std::string, int> getFileNameMap() const;

  /// The underlying document (for tests and tools that read the result).
  tinyxml2::XMLDocument &getDocument() { return *Doc; }

  struct LocRecord;
  class Impl;

private:
  int fileNumber(const std::string &Name);

  std::unique_ptr<tinyxml2::XMLDocument> Doc;
  std::unique_ptr<Impl> P;
  tinyxml2::XMLElement *RetElement = nullptr;
  bool StripLocations = false;
  std::string SaveError;
};

} // namespace korvid

#endif // KORVID_XMLHANDLER_H
