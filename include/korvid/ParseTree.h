//===- korvid/ParseTree.h - The whole parse tree ----------------*- C++ -*-===//
//
// Includes every node class of the parse tree.
//
//===----------------------------------------------------------------------===//
#ifndef KORVID_PARSETREE_H
#define KORVID_PARSETREE_H

#include "korvid/ParseTree/Node.h"
#include "korvid/ParseTree/Program.h"
#include "korvid/ParseTree/Expression.h"
#include "korvid/ParseTree/Condition.h"
#include "korvid/ParseTree/Identification.h"
#include "korvid/ParseTree/Environment.h"
#include "korvid/ParseTree/Data.h"
#include "korvid/ParseTree/File.h"
#include "korvid/ParseTree/Report.h"
#include "korvid/ParseTree/Statement.h"
#include "korvid/ParseTree/Procedure.h"
#include "korvid/ParseTree/Statements.h"
#include "korvid/ParseTree/Legacy.h"

#endif // KORVID_PARSETREE_H
