#include "autobet/program.h"

#include <algorithm>
#include <span>
#include <utility>

#include "autobet/checker.h"
#include "autobet/statements.h"
#include "autobet/vocabulary.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr StatementKind KindOf(int32_t code) {
  switch (code) {
    case HeaderToken:
      return StatementKind::Header;
    case LogicIf:
      return StatementKind::If;
    case LogicThen:
      return StatementKind::Then;
    case LogicElse:
      return StatementKind::Else;
    case LogicElseIf:
      return StatementKind::ElseIf;
    case LogicEndIf:
      return StatementKind::EndIf;
    case LogicReturn:
      return StatementKind::Return;
    case LogicGoto:
      return StatementKind::Goto;
    case LogicGosub:
      return StatementKind::Gosub;
    case LogicDo:
      return StatementKind::Do;
    case LogicLoop:
      return StatementKind::Loop;
    case LogicExitDo:
      return StatementKind::ExitDo;
    case LabelToken:
      return StatementKind::Label;
    default:
      return StatementKind::Action;
  }
}

// The element a control word jumps to, or the slot of a header; 0 for the rest.
int32_t TargetOf(StatementKind kind, const ScriptToken& first) {
  const bool none = kind == StatementKind::Action || kind == StatementKind::Label;
  return none ? 0 : static_cast<int32_t>(first.value);
}

constexpr bool OpensCondition(StatementKind kind) {
  return kind == StatementKind::If || kind == StatementKind::ElseIf;
}

class ScriptCompiler {
 public:
  ScriptCompiler(const CompiledScript& script,
                 ScriptProgram& program,
                 std::vector<ScriptString>& strings)
      : script_(script),
        program_(program),
        first_(program.statements.size()),
        shift_(static_cast<int32_t>(strings.size()) - 1),
        statementOf_(script.TokenStream.size() + 1) {
    strings.insert(strings.end(), script.ScriptStringTable.begin() + 1,
                   script.ScriptStringTable.end());
  }

  std::optional<ScriptError> Compile();

 private:
  size_t EndOfStatement(size_t begin) const {
    const auto& stream = script_.TokenStream;
    const auto end = std::find_if(stream.begin() + static_cast<std::ptrdiff_t>(begin), stream.end(),
                                  [](const ScriptToken& token) { return IsMarker(token.code); });
    return static_cast<size_t>(end - stream.begin());
  }
  std::optional<std::string> Add(size_t begin, size_t end);
  std::optional<std::string> AddExpression(std::span<const ScriptToken> tokens, Statement& added);
  void PointJumps();

  const CompiledScript& script_;
  ScriptProgram& program_;
  size_t first_;  // statement of this script
  int32_t shift_;
  int32_t line_ = 0;
  bool inCondition_ = false;          // between if and then
  bool conditionFollows_ = false;     // right after the if
  std::vector<int32_t> statementOf_;  // by element
};

std::optional<std::string> ScriptCompiler::AddExpression(std::span<const ScriptToken> tokens,
                                                         Statement& added) {
  if (inCondition_ && !std::exchange(conditionFollows_, false)) return Say(Text::ScriptLeftOver);
  added.kind = inCondition_ ? StatementKind::Condition : StatementKind::Action;
  added.code = static_cast<int32_t>(program_.code.size());
  std::optional<std::string> fault =
      (inCondition_ ? CompileCondition : CompileOrder)(tokens, shift_, program_);
  added.codeEnd = static_cast<int32_t>(program_.code.size());
  return fault;
}

std::optional<std::string> ScriptCompiler::Add(size_t begin, size_t end) {
  const std::span tokens = std::span(script_.TokenStream).subspan(begin, end - begin);
  Statement added{KindOf(tokens.front().code), line_};
  added.target = TargetOf(added.kind, tokens.front());
  std::optional<std::string> fault;
  if (added.kind == StatementKind::Then) {
    if (conditionFollows_) fault = Say(Text::ScriptConditionMissing);
    inCondition_ = conditionFollows_ = false;
  }
  if (OpensCondition(added.kind)) inCondition_ = conditionFollows_ = true;
  const bool jumps = added.kind == StatementKind::Goto || added.kind == StatementKind::Gosub;
  const size_t length = jumps ? 2 : 1;
  if (added.kind == StatementKind::Action)
    fault = AddExpression(tokens, added);
  else if (!fault && tokens.size() != length)
    fault = SayChosen(jumps ? Text::ScriptGotoHelp : Text::ScriptLeftOver);
  std::fill(statementOf_.begin() + static_cast<std::ptrdiff_t>(begin),
            statementOf_.begin() + static_cast<std::ptrdiff_t>(end),
            static_cast<int32_t>(program_.statements.size()));
  program_.statements.push_back(added);
  return fault;
}

// Elements of the stream become statements of the program.
void ScriptCompiler::PointJumps() {
  for (size_t k = first_; k < program_.statements.size(); ++k) {
    Statement& statement = program_.statements[k];
    if (statement.kind == StatementKind::Header || statement.target <= 0) continue;
    const auto element = static_cast<size_t>(statement.target);
    statement.target = element < statementOf_.size() ? statementOf_[element] : 0;
  }
}

std::optional<ScriptError> ScriptCompiler::Compile() {
  const auto& stream = script_.TokenStream;
  for (size_t at = 1; at < stream.size();) {
    if (IsMarker(stream[at].code)) {
      line_ = stream[at].code - MarkerToken;
      ++at;
      continue;
    }
    const size_t end = EndOfStatement(at);
    if (std::optional<std::string> fault = Add(at, end))
      return ErrorAt(script_, at, std::move(*fault));
    at = end;
  }
  PointJumps();
  return std::nullopt;
}

}  // namespace

std::optional<ScriptError> CompileScript(const CompiledScript& script,
                                         ScriptProgram& program,
                                         std::vector<ScriptString>& strings) {
  return ScriptCompiler(script, program, strings).Compile();
}

std::optional<ScriptError> CheckExpressions(CompiledScript& script) {
  ScriptProgram program;
  std::vector<ScriptString> strings(1);
  return CompileScript(script, program, strings);
}

}  // namespace tessarel
