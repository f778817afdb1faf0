#include "ui/sound/sounds.h"

#include <QAudio>
#include <QAudioDevice>
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QMediaDevices>
#include <QPointer>
#include <QRandomGenerator>
#include <QSoundEffect>
#include <QUrl>
#include <algorithm>

#include "state/settings.h"
#include "state/table.h"
#include "ui/sound/sound_lists.h"
#include "ui/text.h"

namespace tessarel {

namespace {

struct SoundState {
  SoundLists lists;
  QHash<QString, QPointer<QSoundEffect>> effects;  // by file
  QStringList waiting;                             // calls, by file
  QPointer<QSoundEffect> speaking;
  int volume = 100;
};

SoundState& State() {
  static SoundState state;
  return state;
}

void SayNext();

// Looking for devices first connects to the sound server. One that is not there is reported on the
// standard error output, which would not help somebody whose machine has no sound.
void FindDevicesQuietly() {
  const QtMessageHandler before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static_cast<void>(QMediaDevices::audioOutputs());
  qInstallMessageHandler(before);
}

bool Silent() {
  if (Settings.DisableAllSound || Table.HyperDriveOn) return true;
  [[maybe_unused]] static const bool looked = (FindDevicesQuietly(), true);
  return QMediaDevices::defaultAudioOutput().isNull();
}

float LinearVolume() {
  const float heard = static_cast<float>(State().volume) / 100;
  return QAudio::convertVolume(heard, QAudio::LogarithmicVolumeScale, QAudio::LinearVolumeScale);
}

// Forgets sounds that nobody hears, so that a script cannot fill the memory with files.
void DropSilentEffects() {
  auto& effects = State().effects;
  for (auto entry = effects.begin(); entry != effects.end();) {
    if (entry.value() && entry.value()->isPlaying()) {
      ++entry;
      continue;
    }
    if (entry.value()) entry.value()->deleteLater();
    entry = effects.erase(entry);
  }
}

// Goes on with the next call once the effect that speaks has come to its end.
void WatchSpeech(QSoundEffect* effect) {
  const auto ended = [effect] {
    if (State().speaking != effect) return;
    if (effect->isPlaying() && effect->status() != QSoundEffect::Error) return;
    State().speaking.clear();
    SayNext();
  };
  QObject::connect(effect, &QSoundEffect::playingChanged, effect, ended);
  QObject::connect(effect, &QSoundEffect::statusChanged, effect, [effect, ended] {
    if (effect->status() == QSoundEffect::Error) ended();
  });
}

// The effect of a file, loaded in the background; null for what is no sound.
QSoundEffect* EffectOf(const QString& file) {
  constexpr qsizetype MostEffects = 120;
  auto& effects = State().effects;
  if (const auto known = effects.value(file)) return known;
  if (!IsWave(file)) return nullptr;
  if (effects.size() >= MostEffects) DropSilentEffects();
  auto* effect = new QSoundEffect(QCoreApplication::instance());
  effect->setSource(QUrl::fromLocalFile(file));
  WatchSpeech(effect);
  effects.insert(file, effect);
  return effect;
}

void Play(QSoundEffect* effect) {
  if (effect == nullptr) return;
  effect->setVolume(LinearVolume());
  effect->play();
}

void PlayAny(const SoundEntry* entry) {
  if (entry == nullptr || Silent()) return;
  const auto pick = QRandomGenerator::global()->bounded(static_cast<quint32>(entry->files.size()));
  Play(EffectOf(entry->files[static_cast<qsizetype>(pick)]));
}

void SayNext() {
  SoundState& state = State();
  while (!state.speaking && !state.waiting.isEmpty()) {
    QSoundEffect* effect = EffectOf(state.waiting.takeFirst());
    if (effect == nullptr) continue;
    state.speaking = effect;
    Play(effect);
  }
}

void StopCalls() {
  SoundState& state = State();
  state.waiting.clear();
  if (QSoundEffect* effect = std::exchange(state.speaking, {}).data()) effect->stop();
}

void Call(const SoundEntry* stickPerson, int call) {
  if (stickPerson == nullptr || Silent()) return;
  const QString file = CallFile(*stickPerson, call);
  if (file.isEmpty()) return;
  State().waiting << file;
  SayNext();
}

const SoundEntry* ChosenByKind(SoundKind kind) {
  switch (kind) {
    case SoundKind::StickPerson:
      return ChosenSound(State().lists, kind, Settings.StickPersonVoice);
    case SoundKind::Dice:
      return ChosenSound(State().lists, kind, Settings.DiceSound);
    case SoundKind::Check:
      return ChosenSound(State().lists, kind, Settings.CheckSound);
    case SoundKind::Win:
      return ChosenSound(State().lists, kind, Settings.WinSound);
  }
  return nullptr;
}

// Dice that stay at their stand make the quiet sound, if they make any.
const SoundEntry* DiceSoundInForce() {
  constexpr int32_t Stationary = 1;
  const SoundEntry* chosen = ChosenByKind(SoundKind::Dice);
  if (chosen == nullptr || Settings.DiceAction != Stationary) return chosen;
  const SoundEntry* soft = NamedSound(State().lists, SoundKind::Dice, QStringLiteral("soft"));
  return soft != nullptr ? soft : chosen;
}

int CallOfTotal() {
  constexpr int SevenOut = 1;
  return Table.DiceTotal == 7 && Table.LastPoint != 0 ? SevenOut : Table.DiceTotal;
}

// The call of a hard way; the totals 2 and 12 have none.
int CallOfDoubles() {
  constexpr int HardFour = 13;
  return Table.Die1 >= 2 && Table.Die1 <= 5 ? HardFour + Table.Die1 - 2 : 0;
}

}  // namespace

std::vector<std::string> SoundNames(SoundKind kind) {
  std::vector<std::string> names;
  for (const QString& name : ShownSounds(State().lists, kind))
    names.push_back(Typed(name));
  return names;
}

std::vector<std::string> SoundFiles(SoundKind kind, int index) {
  const auto& entries = State().lists.Of(kind);
  std::vector<std::string> files;
  if (index < 1 || static_cast<size_t>(index) > entries.size()) return files;
  for (const QString& file : entries[static_cast<size_t>(index) - 1].files) {
    files.push_back(QFile::encodeName(file).toStdString());
  }
  return files;
}

void LoadSounds(const std::string& dataFolder, const std::string& appFolder) {
  StopSounds();
  const auto path = [](const std::string& name) {
    return QFile::decodeName(QByteArray::fromStdString(name));
  };
  QStringList folders;
  if (!dataFolder.empty()) folders << path(dataFolder) + "/sounds";
  if (!appFolder.empty()) folders << path(appFolder);
  State().lists = ReadSoundLists(folders);
}

void PlayTableSound(Sound sound) {
  const SoundLists& lists = State().lists;
  switch (sound) {
    case Sound::Check:
      return PlayAny(ChosenByKind(SoundKind::Check));
    case Sound::DiceThrown:
      return PlayAny(DiceSoundInForce());
    case Sound::Total:
      StopCalls();
      return Call(ChosenByKind(SoundKind::StickPerson), CallOfTotal());
    case Sound::Doubles:
      return Call(ChosenByKind(SoundKind::StickPerson), CallOfDoubles());
    case Sound::ComeOut:
      return Call(ChosenByKind(SoundKind::StickPerson), 17);
    case Sound::FirstComeOut:
      return Call(ChosenByKind(SoundKind::StickPerson), 18);
    case Sound::LimitBroken:
      return PlayAny(NamedSound(lists, SoundKind::Win, QStringLiteral("Chips")));
  }
}

void PlayWinSound() {
  PlayAny(ChosenByKind(SoundKind::Win));
}

void TestSound(SoundKind kind, int index) {
  const SoundEntry* entry = ChosenSound(State().lists, kind, index);
  if (kind != SoundKind::StickPerson) return PlayAny(entry);
  StopCalls();
  Call(entry, QRandomGenerator::global()->bounded(2, 13));
}

void PlaySoundOfFile(const std::string& path) {
  if (!Silent()) Play(EffectOf(QFile::decodeName(QByteArray::fromStdString(path))));
}

void SetSoundVolume(int percent) {
  State().volume = std::clamp(percent, 0, 100);
  for (const auto& effect : std::as_const(State().effects)) {
    if (effect) effect->setVolume(LinearVolume());
  }
}

int SoundVolume() {
  return State().volume;
}

void StopSounds() {
  StopCalls();
  for (const auto& effect : std::as_const(State().effects)) {
    if (effect) effect->stop();
  }
}

}  // namespace tessarel
