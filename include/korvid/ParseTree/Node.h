//===- korvid/ParseTree/Node.h - Base of every parse-tree node --*- C++ -*-===//
//
// Every node of a korvid parse tree derives from korvid::Node. A node knows
// its extent twice: where it stands in the expanded source (COPY members
// inserted, REPLACE applied) and where its text was written (the copybook's
// own file for copied text). The tree owns its nodes (see Program::create);
// nodes refer to each other through plain pointers that own nothing.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_NODE_H
#define KORVID_PARSETREE_NODE_H

#include "korvid/ParseTree/Forward.h"

#include <cstdint>
#include <list>
#include <string>

namespace korvid {

// Every enumeration of the tree has a fixed 32-bit type, so a node can hold
// any 32-bit value in it: visitors meet values no enumerator names (a broken
// tree) and must be able to test for them without undefined behaviour.

/// The list type of every list-valued part of a node. Items may be null.
template <class T> using NodeList = std::list<T *>;

/// Whether a node is one of the extended descriptions that carry computed
/// layout (size, offset, category) besides the parsed clauses.
enum ExNodeType : int32_t {
  EX_NODE_TYPE_NONE = 0,
  EX_NODE_TYPE_EXDATADESCRIPTION = 1,
  EX_NODE_TYPE_EXFILEDESCRIPTION = 2,
};

/// One extent in one file: 1-based lines and columns, the end column being
/// the column of the last character. File points at a name interned by the
/// tree (Program::internFileName); null means "no file".
struct SourceRange {
  uint32_t BeginLine = 0;
  uint32_t BeginColumn = 0;
  uint32_t EndLine = 0;
  uint32_t EndColumn = 0;
  const std::string *File = nullptr;
};

/// Base of all parse-tree nodes.
///
/// Location getters follow one naming scheme: the plain name is the expanded
/// position, the suffix Org the position as written.
class Node {
public:
  /// A node with no location yet (all positions 0, empty file names).
  Node() = default;
  /// A node that reports the location of \p LocFrom (null: no location).
  explicit Node(const Node *LocFrom) { copyLocation(LocFrom); }
  Node(const Node &) = delete;
  Node &operator=(const Node &) = delete;
  virtual ~Node();

  // --- Expanded location ---------------------------------------------------
  uint32_t getBeginLineNo() const { return Expanded.BeginLine; }
  uint32_t getBeginCharPos() const { return Expanded.BeginColumn; }
  uint32_t getEndLineNo() const { return Expanded.EndLine; }
  uint32_t getEndCharPos() const { return Expanded.EndColumn; }
  std::string getFileNameStr() { return fileOf(Expanded); }

  // --- As-written location -------------------------------------------------
  uint32_t getBeginLineNoOrg() const { return Written.BeginLine; }
  uint32_t getBeginCharPosOrg() const { return Written.BeginColumn; }
  uint32_t getEndLineNoOrg() const { return Written.EndLine; }
  uint32_t getEndCharPosOrg() const { return Written.EndColumn; }
  std::string getFileNameOrgStr() { return fileOf(Written); }
  const std::string &getFileNameOrg() const { return fileOf(Written); }

  /// Printable locations, "FILE:LINE:COLUMN" of the node's first character
  /// (expanded and as written). A node without a file prints as "LINE:COLUMN".
  std::string getLocString();
  std::string getLocStringOrg();

  /// Extended descriptions override this; every other node is NONE.
  virtual ExNodeType getExNodeType() { return EX_NODE_TYPE_NONE; }

  const SourceRange &getExpandedRange() const { return Expanded; }
  const SourceRange &getWrittenRange() const { return Written; }

  // --- Construction --------------------------------------------------------
  /// Sets both extents; text of the main file has equal ones.
  void setLocation(const SourceRange &ExpandedRange,
                   const SourceRange &WrittenRange) {
    Expanded = ExpandedRange;
    Written = WrittenRange;
  }
  void setLocation(const SourceRange &Both) { setLocation(Both, Both); }
  /// Takes both extents of \p From; a null \p From leaves the node as it is.
  void copyLocation(const Node *From) {
    if (From)
      setLocation(From->Expanded, From->Written);
  }
  /// Spans from the beginning of \p First to the end of \p Last, in both
  /// sources; either may be null, in which case that end is left as it is.
  /// The file names are those of \p First.
  void setExtent(const Node *First, const Node *Last);

private:
  static const std::string &fileOf(const SourceRange &R);

  SourceRange Expanded;
  SourceRange Written;
};

} // namespace korvid

#endif // KORVID_PARSETREE_NODE_H
