// Sounds: the lists of sound files found, and playing them. Without a sound device, and with the
// sounds disabled, everything here is silent.
#pragma once

#include <string>
#include <vector>

#include "base/front_end.h"

namespace tessarel {

// The lists of Settings.StickPersonVoice, DiceSound, CheckSound and WinSound.
enum class SoundKind { StickPerson, Dice, Check, Win };

// The entries of a list as they are shown: "< none >", the sounds without extension and, if there
// are several, "< random >". An index at or beyond the end counts as entry 0.
std::vector<std::string> SoundNames(SoundKind kind);

// Reads the lists and makes ready to play. `dataFolder` holds what ships with the program, the
// program's folder may hold more.
void LoadSounds(const std::string& dataFolder, const std::string& appFolder);

// Plays what the settings choose for the event.
void PlayTableSound(Sound sound);
// Plays entry `index` of a list, as the test buttons do.
void TestSound(SoundKind kind, int index);
// Plays a file; what is no sound is silent.
void PlaySoundOfFile(const std::string& path);

// 0 to 100, for both channels; kept in Settings by the caller.
void SetSoundVolume(int percent);
int SoundVolume();

// Ends whatever plays.
void StopSounds();

}  // namespace tessarel
