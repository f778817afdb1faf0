// Sounds: the lists of sounds found, and playing them. Nothing here waits for a sound to end, and
// without a sound device, with the sounds disabled and under the Hyper-Drive everything is silent.
//
// A sound of a list is a file or a folder named with the extension of its kind. Those in "*.dce",
// "*.chp" and "*.win" are taken at random. A stick person is a folder "*.stk" of the calls "01" to
// "18": 1 seven out, 2 to 12 the totals, 13 to 16 the hard 4, 6, 8 and 10, 17 the come-out and 18
// the first come-out. What is played is in WAV form, whatever the extension.
#pragma once

#include <string>
#include <vector>

#include "base/front_end.h"

namespace tessarel {

// The lists of Settings.StickPersonVoice, DiceSound, CheckSound and WinSound.
enum class SoundKind { StickPerson, Dice, Check, Win };
inline constexpr int SoundKindCount = 4;

// The entries of a list as they are shown: "< none >", the sounds without extension and, if there
// are several, "< random >". An index at or beyond the end counts as entry 0.
std::vector<std::string> SoundNames(SoundKind kind);

// Reads the lists. `dataFolder` holds what ships with the program in its folder "sounds"; the
// program's folder may hold more, and replaces what bears the same name.
void LoadSounds(const std::string& dataFolder, const std::string& appFolder);

// Where an entry's sounds lie, in the order of their names; empty for "< none >" and "< random >".
std::vector<std::string> SoundFiles(SoundKind kind, int index);

// Plays what the settings choose for the event. Calls wait for each other; the call of a total ends
// those of the roll before.
void PlayTableSound(Sound sound);
// Plays the chosen sound of a win.
void PlayWinSound();
// Plays entry `index` of a list, as the test buttons do.
void TestSound(SoundKind kind, int index);
// Plays a file; what is no sound is silent.
void PlaySoundOfFile(const std::string& path);

// 0 to 100, for both channels; kept until the program ends.
void SetSoundVolume(int percent);
int SoundVolume();

// Ends whatever plays.
void StopSounds();

}  // namespace tessarel
