// The operators of expressions between two values, and how tightly they bind. Compiling expressions
// works on this table.
#pragma once

#include <cstdint>
#include <string_view>

#include "autobet/program.h"
#include "autobet/vocabulary.h"

namespace tessarel {

// The levels of precedence; a higher one binds tighter.
enum OperatorLevel : int {
  LowestLevel = 1,
  XorLevel = LowestLevel,
  OrLevel,
  AndLevel,
  NotLevel,
  RelationLevel,
  JoinLevel,
  AddLevel,
  ModuloLevel,
  WholeDivideLevel,
  MultiplyLevel,
  MinusLevel,
  PowerLevel,
};

enum class OperatorKind { Logic, Relation, Join, Arithmetic };

struct BinaryOperator {
  int32_t code;  // the logic token
  OperatorLevel level;
  OperatorKind kind;
  Operation operation;
  std::string_view name{};  // in messages
};

// The minus in front of one operand.
inline constexpr BinaryOperator UnaryMinus = {LogicSubtract, MinusLevel, OperatorKind::Arithmetic,
                                              Operation::Negate};

// Null for a token that is no operator.
const BinaryOperator* OperatorOf(int32_t code);

}  // namespace tessarel
