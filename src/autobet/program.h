// What a checked script is turned into to be run: one statement after another, each with short
// instructions for a stack of operands, so that nothing is parsed while the table rolls. The
// checker compiles every statement to see whether it makes sense; the interpreter runs the result.
//
// Precedence, from what binds tightest: functions and variables; power; unary minus; multiply and
// divide; whole divide; modulo; add and subtract; join; comparisons; not; and; or; xor. Each level
// goes from left to right.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "autobet/translation.h"
#include "autobet/values.h"

namespace tessarel {

// What an instruction does with the stack of operands. Lists, arguments and targets lie after a
// mark; the instruction that takes them takes all of them.
enum class Operation : uint8_t {
  // clang-format off
  PushNumber,       // the number
  PushText,         // argument: its StringValue or index
  Read,             // argument: a reference; pushes its value
  PushReference,    // argument: a reference
  SetPlayer,        // a number, with a reference below it, whose player it becomes
  Name,             // argument: qualifiers of a function that names a variable; takes a number
  ReadReference,    // a reference becomes its value
  Thru,             // two references become all from the first to the second
  ReadThru,         // the same with their values
  Mark,
  Qualify,          // argument: the comparison; a value becomes a qualifier
  CompareWithList,  // argument: the comparison; All if detail is 1
  ListTruth,        // All if detail is 1
  Call,             // argument: qualifiers, detail: see Instruction
  Negate, Not,
  Power, Multiply, Divide, WholeDivide, Modulo, Add, Subtract, Join,
  Compare,          // argument: the comparison
  And, Or, Xor,
  Assign,           // a value, below it the mark and the targets
  Command,          // argument: the action; its arguments, a mark and its targets
  // clang-format on
};

struct Instruction {
  Operation operation{};
  uint8_t detail = 0;
  int16_t function = 0;  // of Call and Name
  int32_t argument = 0;
  double number = 0;
};

enum class StatementKind : uint8_t {
  Header,  // target: the slot
  If,      // the condition follows
  Then,    // target: where a false condition goes on
  Else,    // target: the endif
  ElseIf,  // target: the endif; the condition follows
  EndIf,
  Do,
  Loop,    // target: the do
  ExitDo,  // target: the loop
  Goto,    // target: the label
  Gosub,   // target: the label
  Return,
  Label,
  Condition,  // leaves a value
  Action,     // leaves nothing
};

struct Statement {
  StatementKind kind{};
  int32_t line = 0;    // of the script, from 1
  int32_t target = 0;  // an index of the statements
  int32_t code = 0, codeEnd = 0;
};

struct ScriptProgram {
  std::vector<Statement> statements;
  std::vector<Instruction> code;
  std::vector<Reference> references;
};

// Appends a script in normal form to the program and its strings to `strings`; everything that
// refers to a position is shifted by what stood there. On an error the program has been added to.
std::optional<ScriptError> CompileScript(const CompiledScript& script,
                                         ScriptProgram& program,
                                         std::vector<ScriptString>& strings);

}  // namespace tessarel
