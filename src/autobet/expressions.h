// Expressions of a script: turns their tokens into instructions, or says precisely what is wrong
// with them. Statements are compiled on top of it.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "autobet/function_table.h"
#include "autobet/operators.h"
#include "autobet/program.h"
#include "texts/say.h"

namespace tessarel {

// What is wrong with a statement, as text for the message box; thrown, it ends its compilation.
struct StatementRefusal {
  std::string text;
};

[[noreturn]] void Refuse(std::string text);
[[noreturn]] void Refuse(CheckedText<0> text);

// What a stretch of tokens turned out to be.
enum class Found { Nothing, Value, List };

// Walks over the tokens of one statement and appends what they mean to a program (its code and
// references). Every routine that compiles begins at the token in hand and ends after what it
// took.
class ExpressionCompiler {
 public:
  // `shift` is added to the indices of strings.
  ExpressionCompiler(std::span<const ScriptToken> tokens, int32_t shift, ScriptProgram& program)
      : tokens_(tokens), end_(tokens.size()), shift_(shift), program_(program) {}

  // The whole statement as a condition, which leaves one value.
  void Condition();

 protected:
  static constexpr int32_t End = -1000;  // after the last token

  // The code of the token in hand, and the number that it carries.
  int32_t Code() const { return at_ < end_ ? tokens_[at_].code : End; }
  int32_t TakeNumber() { return static_cast<int32_t>(tokens_[at_++].value); }
  bool AtEnd() const { return at_ >= end_; }
  void Expect(int32_t code, CheckedText<0> text = Text::ScriptLeftOver);
  void ExpectEnd() const;

  size_t Emit(Operation operation, int32_t argument = 0, double number = 0);

  // What binds at least as tightly as `level`.
  Found Binary(int level);
  Found Expression() { return Binary(LowestLevel); }

  bool AtReference() const;
  void ReferenceOnStack();
  // Whether the item of a list that begins here is a range, and the range.
  bool ItemIsThru() const;
  void Thru(Operation operation);
  // A qualifier in a list or, with its number, in a function.
  void QualifierItem(int32_t function);

  std::span<const ScriptToken> tokens_;
  size_t at_ = 0, end_;
  int depth_ = 0;                                           // of brackets and signs
  void (*checkTarget_)(const Reference& target) = nullptr;  // refuses one that does not fit

 private:
  Found Prefixed(int level);
  Found Not();
  Found Minus();
  Found Primary();
  void RightSide(const BinaryOperator& op);
  Found InBrackets();

  int32_t Keep(const Reference& reference);
  Reference Qualifiers(int count);
  void PlayerOfReference(Reference& reference);
  void NamedReference();
  Found ReferenceValue();
  Found FunctionValue();
  void Arguments(const FunctionTraits& function, bool namesSet);
  void CountedArguments(const FunctionTraits& function);
  int32_t MarkedList();
  void ListItems(int32_t function);
  bool AtAllRolls() const;
  void AllRolls();

  int32_t shift_;
  ScriptProgram& program_;
};

// Counts how deep the compiler is in brackets and signs; refuses what is beyond all bounds.
class Nesting {
 public:
  explicit Nesting(int& depth);
  ~Nesting() { --depth_; }
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;

 private:
  int& depth_;
};

}  // namespace tessarel
