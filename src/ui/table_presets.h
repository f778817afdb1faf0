#pragma once
#include "config/language.h"
namespace tessarel { int TablePresetCount(); const char* TablePresetName(int); const SixTexts& TablePresetCaption(int); void ApplyTablePreset(int); }
