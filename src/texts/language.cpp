#include "texts/language.h"

#include "base/fault.h"
#include "base/message.h"
#include "state/settings.h"
#include "texts/say.h"

namespace tessarel {

namespace {

std::string ReportInLanguage(const Fault& fault, std::string_view place) {
  return Say(Text::FaultReport, fault.Description, fault.Number, place);
}

FaultWordingState FaultsInLanguage() {
  return {.Overflow = Say(Text::FaultOverflow),
          .IndexOutOfRange = Say(Text::FaultIndex),
          .DivisionByZero = Say(Text::FaultDivision),
          .FileNotFound = Say(Text::FaultFileNotFound),
          .FileAccess = Say(Text::FaultFileAccess),
          .DeviceFull = Say(Text::FaultDiskFull),
          .FileTooLarge = Say(Text::FaultFileTooLarge),
          .InputPastEnd = Say(Text::FaultInputPastEnd),
          .InvalidCall = Say(Text::FaultInvalidCall),
          .Report = ReportInLanguage};
}

}  // namespace

void SetLanguage(int32_t language) {
  Settings.Language = language >= 0 && language < LanguageCount ? language : English;
  Message.ErrorTitle = Wording(Text::Error);
  FaultWording = FaultsInLanguage();
}

}  // namespace tessarel
