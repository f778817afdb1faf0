#include "autobet/operators.h"

#include <algorithm>
#include <array>

namespace tessarel {

namespace {

constexpr auto BinaryOperators = std::to_array<BinaryOperator>({
    {LogicPower, PowerLevel, OperatorKind::Arithmetic, Operation::Power},
    {LogicMultiply, MultiplyLevel, OperatorKind::Arithmetic, Operation::Multiply},
    {LogicDivide, MultiplyLevel, OperatorKind::Arithmetic, Operation::Divide},
    {LogicWholeDivide, WholeDivideLevel, OperatorKind::Arithmetic, Operation::WholeDivide},
    {LogicModulo, ModuloLevel, OperatorKind::Arithmetic, Operation::Modulo},
    {LogicAdd, AddLevel, OperatorKind::Arithmetic, Operation::Add},
    {LogicSubtract, AddLevel, OperatorKind::Arithmetic, Operation::Subtract},
    {LogicJoin, JoinLevel, OperatorKind::Join, Operation::Join},
    {LogicEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicNotEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicLess, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicGreater, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicLessOrEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicGreaterOrEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicAnd, AndLevel, OperatorKind::Logic, Operation::And, "AND"},
    {LogicOr, OrLevel, OperatorKind::Logic, Operation::Or, "OR"},
    {LogicXor, XorLevel, OperatorKind::Logic, Operation::Xor, "XOR"},
});

}  // namespace

const BinaryOperator* OperatorOf(int32_t code) {
  const auto* const found = std::find_if(BinaryOperators.begin(), BinaryOperators.end(),
                                         [code](const auto& row) { return row.code == code; });
  return found != BinaryOperators.end() ? found : nullptr;
}

}  // namespace tessarel
