#include <algorithm>
#include <string>
#include <unordered_map>

#include "autobet/checker.h"
#include "autobet/number_text.h"
#include "autobet/token_walk.h"
#include "base/single_byte_text.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Follows the control words of a script and writes where they jump.
class StructureWalk {
 public:
  StructureWalk(CompiledScript& script, std::vector<int32_t>* lineLevels)
      : script_(script), stream_(script.TokenStream), lineLevels_(lineLevels) {}

  std::optional<ScriptError> Run() {
    EnterLabels();
    if (lineLevels_ != nullptr) lineLevels_->clear();
    for (size_t k = 2; k < stream_.size(); ++k) {
      if (IsMarker(stream_[k].code)) {
        NoteLine(k);
      } else if (auto error = Take(k)) {
        return error;
      }
    }
    return CheckEnd();
  }

 private:
  using Result = std::optional<ScriptError>;

  // An if whose endif has not come yet.
  struct OpenIf {
    size_t element = 0;  // of the if
    size_t waiting = 0;  // the then or else that jumps to what comes next
    bool hasElse = false;
    std::vector<size_t> branches{};  // else and elseif words, which jump to the endif
  };
  struct OpenDo {
    size_t element = 0;
    std::vector<size_t> exits{};
  };

  ScriptError Error(size_t element, std::string text) const {
    return ErrorAt(script_, element, std::move(text));
  }

  void JumpTo(size_t from, size_t to) { stream_[from].value = static_cast<double>(to); }

  void EnterLabels() {
    for (size_t k = 2; k < stream_.size(); ++k) {
      if (stream_[k].code != LabelToken) continue;
      ScriptString& name = script_.ScriptStringTable[static_cast<size_t>(stream_[k].value)];
      name.element = static_cast<int32_t>(k);
      labels_[LowerCase(TrimSpaces(name.text))] = k;
    }
  }

  Result Take(size_t k) {
    switch (stream_[k].code) {
      case LogicIf:
        return TakeIf(k);
      case LogicThen:
        return TakeThen(k);
      case LogicElse:
        return TakeElse(k);
      case LogicElseIf:
        return TakeElseIf(k);
      case LogicEndIf:
        return TakeEndIf(k);
      case LogicDo:
        return TakeDo(k);
      case LogicLoop:
        return TakeLoop(k);
      case LogicExitDo:
        return TakeExitDo(k);
      case LogicGoto:
      case LogicGosub:
        return TakeJump(k);
      default:
        return {};
    }
  }

  Result TakeIf(size_t k) {
    if (condition_ != 0) return Error(k, Say(Text::ScriptWordMisplaced, "IF"));
    condition_ = k;
    ifs_.push_back({.element = k});
    ++level_;
    return {};
  }

  Result TakeThen(size_t k) {
    if (condition_ == 0) return Error(k, Say(Text::ScriptWordMisplaced, "THEN"));
    condition_ = 0;
    ifs_.back().waiting = k;
    return {};
  }

  Result TakeElse(size_t k) {
    if (ifs_.empty() || condition_ != 0 || ifs_.back().hasElse)
      return Error(k, Say(Text::ScriptElseWithoutThen));
    if (auto error = CheckLoopsClosed()) return error;
    BeginBranch(k);
    ifs_.back().waiting = k;
    ifs_.back().hasElse = true;
    return {};
  }

  Result TakeElseIf(size_t k) {
    if (ifs_.empty() || condition_ != 0) return Error(k, Say(Text::ScriptWordMisplaced, "ELSEIF"));
    if (ifs_.back().hasElse) return Error(k, Say(Text::ScriptElseIfAfterElse));
    if (auto error = CheckLoopsClosed()) return error;
    BeginBranch(k);
    condition_ = k;
    return {};
  }

  void BeginBranch(size_t k) {
    JumpTo(ifs_.back().waiting, k);
    ifs_.back().branches.push_back(k);
  }

  Result TakeEndIf(size_t k) {
    if (condition_ != 0) return Error(k, Say(Text::ScriptThenBeforeEndIf));
    if (ifs_.empty()) return Error(k, Say(Text::ScriptEndIfAlone));
    if (auto error = CheckLoopsClosed()) return error;
    JumpTo(ifs_.back().waiting, k);
    for (const size_t branch : ifs_.back().branches)
      JumpTo(branch, k);
    ifs_.pop_back();
    --level_;
    return {};
  }

  // A branch of an if cannot end within a loop that began in it.
  Result CheckLoopsClosed() const {
    if (dos_.empty() || dos_.back().element < ifs_.back().element) return {};
    return Error(dos_.back().element, Say(Text::ScriptLoopUnclosed));
  }

  Result TakeDo(size_t k) {
    if (condition_ != 0) return Error(k, Say(Text::ScriptStatementMisplaced, "DO"));
    dos_.push_back({.element = k});
    ++level_;
    return {};
  }

  Result TakeLoop(size_t k) {
    if (dos_.empty()) return Error(k, Say(Text::ScriptLoopWithoutDo));
    const OpenDo& loop = dos_.back();
    if (!ifs_.empty() && ifs_.back().element > loop.element)
      return Error(k, Say(Text::ScriptLoopInIf));
    if (condition_ != 0) return Error(k, Say(Text::ScriptLoopWithoutDo));
    JumpTo(k, loop.element);
    JumpTo(loop.element, k);
    for (const size_t exit : loop.exits)
      JumpTo(exit, k);
    dos_.pop_back();
    --level_;
    return {};
  }

  Result TakeExitDo(size_t k) {
    if (dos_.empty()) return Error(k, Say(Text::ScriptExitDoOutside));
    if (condition_ != 0) return Error(k, Say(Text::ScriptStatementMisplaced, "EXIT DO"));
    dos_.back().exits.push_back(k);
    return {};
  }

  Result TakeJump(size_t k) {
    const std::string_view word = stream_[k].code == LogicGoto ? "GOTO" : "GOSUB";
    if (condition_ != 0) return Error(k, Say(Text::ScriptWordMisplaced, word));
    const size_t end = StatementEnd(stream_, k);
    if (k + 1 >= end) return Error(k, Say(Text::ScriptJumpLacksLabel, word));
    const auto& [code, value] = stream_[k + 1];
    if (code != NumberToken && (code != StringToken || value < 0))
      return Error(k, Say(Text::ScriptJumpUnfit, word));
    if (k + 2 < end && stream_[k + 2].code == ActionToken)
      return Error(k, Say(Text::ScriptJumpLacksColon, word));
    const std::string name = code == NumberToken
                                 ? NumberText(value)
                                 : script_.ScriptStringTable[static_cast<size_t>(value)].text;
    const auto label = labels_.find(LowerCase(TrimSpaces(name)));
    if (label == labels_.end()) return Error(k, Say(Text::ScriptLabelNotFound, name));
    JumpTo(k, label->second);
    return {};
  }

  Result CheckEnd() const {
    if (condition_ != 0) return Error(condition_, Say(Text::ScriptStatementMissing, "THEN"));
    if (!ifs_.empty())
      return Error(ifs_.back().waiting, Say(Text::ScriptStatementMissing, "ENDIF"));
    if (!dos_.empty()) return Error(dos_.back().element, Say(Text::ScriptStatementMissing, "LOOP"));
    return {};
  }

  // The first statement of a line tells its indentation; lines without one go with what is around.
  void NoteLine(size_t marker) {
    if (lineLevels_ == nullptr) return;
    const auto line = static_cast<size_t>(stream_[marker].code - MarkerToken);
    if (line == 0) return;
    if (lineLevels_->size() < line - 1) lineLevels_->resize(line - 1, level_);
    const bool last = marker + 1 == stream_.size();
    if (last || lineLevels_->size() >= line || IsMarker(stream_[marker + 1].code)) return;
    constexpr int32_t Outdented[] = {LogicThen, LogicElse, LogicElseIf, LogicEndIf, LogicLoop};
    const bool outdented = std::ranges::count(Outdented, stream_[marker + 1].code) > 0;
    lineLevels_->push_back(std::max(level_ - (outdented ? 1 : 0), 0));
  }

  CompiledScript& script_;
  std::vector<ScriptToken>& stream_;
  std::vector<int32_t>* lineLevels_;
  std::unordered_map<std::string, size_t> labels_;  // by name, trimmed and in lower case
  std::vector<OpenIf> ifs_;
  std::vector<OpenDo> dos_;
  size_t condition_ = 0;  // the if or elseif whose then has not come yet
  int32_t level_ = 0;
};

}  // namespace

std::optional<ScriptError> CheckStructure(CompiledScript& script,
                                          std::vector<int32_t>* lineLevels) {
  return StructureWalk(script, lineLevels).Run();
}

}  // namespace tessarel
