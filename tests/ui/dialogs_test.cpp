// Runs the message box and the dialogs of play on real widgets and answers them by key and click.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScreen>
#include <QTextBrowser>
#include <filesystem>
#include <fstream>

#include "base/clock.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "dice/roll_file.h"
#include "engine/bets.h"
#include "play/roll_pace.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/language.h"
#include "ui/dialog_driver.h"
#include "ui/money_input.h"
#include "ui/palette.h"
#include "ui/text.h"
#include "ui/text_fit.h"
#include "ui/windows/folder_listing.h"
#include "ui/windows/game_dialogs.h"
#include "ui/windows/help_pages.h"
#include "ui/windows/message_window.h"

namespace tessarel {
namespace {

using Texts = std::vector<std::string>;

// The page that the help shows; empty when it is not open.
QString OpenHelpPage() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "frmHelp")
      return window->findChild<QTextBrowser*>()->source().fileName();
  }
  return {};
}

void CloseHelp() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "frmHelp") window->close();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class DialogTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { ApplyCasinoStyle(); }
  void SetUp() override { Reset(); }
  void TearDown() override { Reset(); }

  static void Reset() {
    CloseHelp();
    Message = {};
    FrontEnd = {};
    FrontEnd.ShowMessage = [] { ShowMessageWindow(nullptr); };
    Table = {};
    RollFile = {};
    RollPace = {};
    FileDialog = {};
    Settings = {};
    SetLanguage(English);
  }

  // Shows a message and answers it.
  static int32_t Tell(int32_t flags, const std::function<void(QDialog&)>& act) {
    Answer(act, [flags] { ShowMessage("Text", "Title", flags); });
    return Message.MsgResult;
  }

  // Opens a dialog in every language and size of type, and looks at its texts.
  static void WalkLanguages(const QString& name, const std::function<void()>& open) {
    for (const int32_t size : {9, 11, 13}) {
      Settings.BasicFontSize = size;
      for (int32_t language = 0; language < LanguageCount; ++language) {
        SetLanguage(language);
        const QString look = QString("%1_%2_%3").arg(name).arg(language).arg(size);
        SCOPED_TRACE(look.toStdString());
        Answer([&look](QDialog& dialog) { Judge(dialog, look); }, open);
      }
    }
  }

  static void Judge(QDialog& dialog, const QString& look) {
    EXPECT_EQ(TextsThatDoNotFit(dialog), Texts());
    EXPECT_EQ(ClashingShortcuts(dialog), Texts());
    EXPECT_LT(dialog.height(), dialog.screen()->availableSize().height());
    SaveLook(dialog, look);
    dialog.reject();
  }
};

// --- The message box ----------------------------------------------------------------------------

TEST_F(DialogTest, MessagesAreAnsweredByEnterEscapeAndEachButton) {
  struct Case {
    int32_t flags, onEnter, onEscape;
    std::vector<std::pair<const char*, int32_t>> buttons;
  };
  const Case cases[] = {
      {msg::Ok, 0, 0, {{"OK", 0}}},
      {0, 0, 0, {{"OK", 0}}},
      {513, 0, 0, {{"OK", 0}}},
      {529, 0, 0, {{"OK", 0}, {"Help", 4}}},
      {1030, AnswerYes, AnswerNo, {{"Yes", AnswerYes}, {"No", AnswerNo}}},
      {5126, AnswerYes, AnswerNo, {{"Yes", AnswerYes}, {"No", AnswerNo}}},
      {9222, AnswerNo, AnswerNo, {{"Yes", AnswerYes}, {"No", AnswerNo}}},
      {97, 0, AnswerCancel, {{"OK", 0}, {"Cancel", AnswerCancel}}},
      {585, 0, 3, {{"OK", 0}, {"Cancel", 3}}},
      {38, AnswerYes, AnswerCancel, {{"Yes", 6}, {"No", 7}, {"Cancel", AnswerCancel}}},
      {msg::Button0 | msg::Button1 | msg::DefaultSecond, 1, 0, {{"OK", 0}, {"Yes", 1}}},
      {msg::Button1, 1, 1, {{"Yes", 1}}},
      {31, 0, 3, {{"OK", 0}, {"Yes", 6}, {"No", 7}, {"Cancel", 3}, {"Help", 4}}},
  };
  for (const Case& each : cases) {
    const auto press = [](Qt::Key key) { return [key](QDialog& box) { Press(box, key); }; };
    EXPECT_EQ(Tell(each.flags, press(Qt::Key_Return)), each.onEnter) << each.flags;
    EXPECT_EQ(Tell(each.flags, press(Qt::Key_Escape)), each.onEscape) << each.flags;
    EXPECT_EQ(Tell(each.flags, [](QDialog& box) { box.close(); }), each.onEscape) << each.flags;
    for (size_t k = 0; k < each.buttons.size(); ++k) {
      EXPECT_EQ(Tell(each.flags,
                     [&](QDialog& box) {
                       const auto buttons = box.findChildren<QPushButton*>();
                       ASSERT_EQ(buttons.size(), static_cast<qsizetype>(each.buttons.size()));
                       QPushButton* const button = buttons[static_cast<qsizetype>(k)];
                       EXPECT_EQ(button->text(), each.buttons[k].first);
                       button->click();
                     }),
                each.buttons[k].second)
          << each.flags;
    }
  }
}

TEST_F(DialogTest, QuestionsTakeTheFirstLetterInTheLanguageInForce) {
  SetLanguage(German);
  EXPECT_EQ(Tell(msg::AskNoDefault, [](QDialog& box) { Press(box, Qt::Key_J); }), AnswerYes);
  EXPECT_EQ(Tell(msg::AskYesDefault, [](QDialog& box) { Press(box, Qt::Key_N); }), AnswerNo);
}

TEST_F(DialogTest, MessageAnswersItselfWithTheFirstButton) {
  Message.MsgText = "Wait";
  Message.MsgFlags = msg::AskNoDefault;
  Message.MsgTimeout = 150;
  ShowMessage();
  EXPECT_EQ(Message.MsgResult, AnswerYes);
}

TEST_F(DialogTest, HideBoxClearsItsNotice) {
  struct Case {
    int32_t flag, hyperDrive, left;
  };
  for (const Case& each : {Case{msg::HideNotice1, 0, 30}, Case{msg::HideNotice2, 0, 29},
                           Case{msg::HideNotice4, 0, 27}, Case{msg::HideNotice8, 0, 23},
                           Case{msg::HideNotice8, -1, 15}, Case{msg::HideNotice2, -1, 29}}) {
    Settings.Notices = 31;
    Table.HyperDriveOn = each.hyperDrive;
    Tell(msg::Ok | each.flag, [](QDialog& box) { Press(box, Qt::Key_Return); });
    EXPECT_EQ(Settings.Notices, 31);
    Tell(msg::Ok | each.flag, [](QDialog& box) {
      Child<QCheckBox>(box, "chkHide").setChecked(true);
      Press(box, Qt::Key_Escape);
    });
    EXPECT_EQ(Settings.Notices, each.left);
  }
  Tell(msg::Ok, [](QDialog& box) {
    EXPECT_EQ(box.findChild<QCheckBox*>("chkHide"), nullptr);
    Press(box, Qt::Key_Return);
  });
}

TEST_F(DialogTest, InputAndListHandBackWhatWasChosenUnlessCancelled) {
  const auto type = [](Qt::Key end) {
    return [end](QDialog& box) {
      auto& txtInput = Child<QLineEdit>(box, "txtInput");
      EXPECT_EQ(box.focusWidget(), &txtInput);
      QTest::keyClicks(&txtInput, "250");  // over the text offered, which is selected
      Press(txtInput, end);
    };
  };
  Answer(type(Qt::Key_Return), [] { EXPECT_TRUE(AskForText("How much?", "", "1000")); });
  EXPECT_EQ(Message.MsgInput, "250");
  Answer(type(Qt::Key_Escape), [] { EXPECT_FALSE(AskForText("How much?", "", "1000")); });
  EXPECT_EQ(Message.MsgInput, "1000");

  Message.MsgList = {"Anna", "Bruno", "Çelik"};
  Message.MsgInput = "Bruno";
  Tell(msg::OkInput | msg::List, [](QDialog& box) {
    auto& cmbUser = Child<QComboBox>(box, "cmbUser");
    EXPECT_EQ(cmbUser.currentText(), "Bruno");
    Press(cmbUser, Qt::Key_Down);
    Press(cmbUser, Qt::Key_Return);
  });
  EXPECT_EQ(Message.MsgInput, "Çelik");
}

TEST_F(DialogTest, HelpOpensFromF1OnATopicAndAfterTheBoxFromItsButton) {
  Message.MsgFlags = msg::Button0 | msg::Button4;
  for (const int32_t topic : {0, int32_t{help::Saving}}) {
    Message.MsgHelpId = topic;
    const QString page = HelpFileOfTopic(topic);
    Answer(
        [&](QDialog& box) {
          Press(box, Qt::Key_F1);
          EXPECT_EQ(OpenHelpPage(), topic == 0 ? QString() : page);
          CloseHelp();
          Click(box, "cmdButton4");
        },
        [] { ShowMessage(); });
    EXPECT_EQ(OpenHelpPage(), page);
    CloseHelp();
  }
}

TEST_F(DialogTest, MessageWrapsAtItsWidthAndIsCreditedToTheNextRoll) {
  std::string words, path;
  for (int k = 0; k < 80; ++k) {
    words += "word ";
    path += "/folder";
  }
  struct Case {
    int32_t width;
    std::string text;
    int least, most;
  };
  for (const Case& each :
       {Case{0, words, 300, DefaultMessageWidth}, Case{200, words, 120, 200},
        Case{600, words, 450, 600}, Case{300, path, 200, 300}, Case{600, "short", 20, 60}}) {
    Message.MsgText = each.text;
    Message.MsgWidth = each.width;
    Message.MsgFlags = msg::Ok;
    Answer(
        [&each](QDialog& box) {
          constexpr int Slack = 4;
          const int shown = Child(box, "lblText").width();
          EXPECT_GE(shown, each.least) << each.width;
          EXPECT_LE(shown, each.most + Slack) << each.width;
          EXPECT_EQ(TextsThatDoNotFit(box), Texts());
          Press(box, Qt::Key_Return);
        },
        [] { ShowMessage(); });
  }
  RollPace.RollStamp = TickMilliseconds();
  Tell(msg::Ok, [](QDialog& box) { Press(box, Qt::Key_Return); });
  EXPECT_GE(TickMilliseconds() - RollPace.RollStamp, 600);
}

TEST_F(DialogTest, MessagesHaveRoomForTheirTextsInEveryLanguage) {
  struct Case {
    const char* name;
    int32_t flags;
    const char* text;
  };
  std::string manyLines = "1";
  for (int line = 2; line <= 90; ++line)
    manyLines += "\r" + std::to_string(line) + " of many lines, more than a screen holds";
  const Case cases[] = {
      {"long", msg::Ok | msg::PictureStop, manyLines.c_str()},
      {"ask", msg::AskNoDefault, "Do you want to stop auto-betting?\r\rFred's script processing."},
      {"hide", msg::OkAlert | msg::HideNotice1 | msg::Button4,
       "The maximum odds bet on the Pass Line is $25.\r\rThe bet was adjusted."},
      {"input", msg::OkInput | msg::PictureOk, "Enter Fred's beginning bankroll:"},
      {"list", msg::OkInput | msg::List | msg::PictureStop, "Whose log is meant?"},
      {"wide", msg::Ok | msg::WideLeft | msg::WideRight | msg::Centered, "Seven out!\r\rLine away"},
  };
  Message.MsgList = {"Anna", "Bruno"};
  for (const Case& each : cases) {
    Message.MsgInput = "Anna";
    WalkLanguages(QString("msg_") + each.name,
                  [&] { ShowMessage(each.text, "Auto-Bet Active", each.flags); });
  }
}

// --- Money boxes and colours
// ----------------------------------------------------------------------

TEST_F(DialogTest, MoneyBoxTakesDigitsAndOnePoint) {
  QLineEdit box;
  TakeMoneyOnly(box, 2);
  QTest::keyClicks(&box, "-1a2.3,4.56");
  EXPECT_EQ(box.text(), "12.34");
  box.clear();
  QTest::keyClick(&box, Qt::Key_5);
  QKeyEvent padComma(QEvent::KeyPress, Qt::Key_Comma, Qt::KeypadModifier, ",");
  QApplication::sendEvent(&box, &padComma);
  QApplication::sendEvent(&box, &padComma);
  QTest::keyClick(&box, Qt::Key_5);
  EXPECT_EQ(box.text(), "5.5");
  EXPECT_EQ(MoneyIn(box), Money::FromRaw(55'000));
  box.setText("7.");
  EXPECT_EQ(MoneyIn(box), Money(7));
  box.setText(".5");
  EXPECT_EQ(MoneyIn(box), Money::FromRaw(5'000));
  box.clear();
  EXPECT_EQ(MoneyIn(box), Money());
}

TEST_F(DialogTest, PaletteIsLegible) {
  const QPalette palette = CasinoPalette();
  using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
  for (const auto& [letters, ground] :
       {Pair{QPalette::WindowText, QPalette::Window}, Pair{QPalette::Text, QPalette::Base},
        Pair{QPalette::Text, QPalette::AlternateBase}, Pair{QPalette::ButtonText, QPalette::Button},
        Pair{QPalette::HighlightedText, QPalette::Highlight},
        Pair{QPalette::PlaceholderText, QPalette::Base},
        Pair{QPalette::PlaceholderText, QPalette::Window}, Pair{QPalette::Link, QPalette::Window},
        Pair{QPalette::LinkVisited, QPalette::Window},
        Pair{QPalette::ToolTipText, QPalette::ToolTipBase},
        Pair{QPalette::Highlight, QPalette::Window}, Pair{QPalette::Highlight, QPalette::Base}}) {
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      if (group == QPalette::Disabled && letters == QPalette::Highlight) continue;
      EXPECT_GE(ContrastOf(palette.color(group, letters), palette.color(group, ground)), 4.5)
          << group << " " << letters << " on " << ground;
    }
  }
  for (const QRgb mark : {WinColour, LossColour, WarningColour})
    EXPECT_GE(ContrastOf(QColor(mark), palette.color(QPalette::Window)), 4.5);
}

// --- The settle-bet prompt -----------------------------------------------------------------------

SettlePrompt SomePrompt(Outcome outcome) {
  Table.PlayerName[1] = "Fred";
  Table.CurrentBet = bet::Place6;
  SetBetAmount(1, bet::Place6, 12);
  Table.NetWin = Table.GrossWin = outcome == Outcome::Lost ? Money(-12) : Money(14);
  Table.ChipUnit = 6;
  return MakeSettlePrompt(1, outcome, outcome == Outcome::Won);
}

TEST_F(DialogTest, SettlePromptAnswersWithItsButtons) {
  for (const Outcome outcome : {Outcome::Won, Outcome::Lost, Outcome::Idle}) {
    for (int button = 0; button <= 6; ++button) {
      SettlePrompt prompt = SomePrompt(outcome);
      Answer([&](QDialog& window) { Click(window, QString("cmdHandle%1").arg(button)); },
             [&] { AskSettleBet(nullptr, prompt); });
      EXPECT_EQ(prompt.button, button);
    }
    const std::pair<Qt::Key, int> keys[] = {{Qt::Key_Return, 1}, {Qt::Key_Escape, 0}};
    for (const auto& [key, button] : keys) {
      SettlePrompt prompt = SomePrompt(outcome);
      Answer([key = key](QDialog& window) { Press(window, key); },
             [&] { AskSettleBet(nullptr, prompt); });
      EXPECT_EQ(prompt.button, button);
    }
  }
}

TEST_F(DialogTest, SettlePromptCyclesAndKeepsItsFigures) {
  SettlePrompt prompt = SomePrompt(Outcome::Won);
  prompt.modify = {Money(10), 3, Money(6)};
  Answer(
      [](QDialog& window) {
        auto& cmdMathOperator = Child<QPushButton>(window, "cmdMathOperator");
        auto& cmdUnits = Child<QPushButton>(window, "cmdUnits5");
        QStringList operators, units, setUnits;
        for (int k = 0; k < 5; ++k) {
          operators << cmdMathOperator.text();
          cmdMathOperator.click();
        }
        for (int k = 0; k < 8; ++k) {
          units << cmdUnits.text();
          cmdUnits.click();
          setUnits << Child<QPushButton>(window, "cmdUnits6").text();
          Child<QPushButton>(window, "cmdUnits6").click();
        }
        EXPECT_EQ(operators, QStringList({"/", "+", "-", "x", "/"}));
        EXPECT_EQ(units, QStringList({"500 Units", "$", "%", "1 Units", "5 Units", "25 Units",
                                      "100 Units", "500 Units"}));
        EXPECT_EQ(setUnits, QStringList({"$", "1 Units", "5 Units", "25 Units", "100 Units",
                                         "500 Units", "$", "1 Units"}));
        auto& txtModifyAmount = Child<QLineEdit>(window, "txtModifyAmount6");
        txtModifyAmount.selectAll();
        QTest::keyClicks(&txtModifyAmount, "7.5");
        Press(txtModifyAmount, Qt::Key_Return);
      },
      [&] { AskSettleBet(nullptr, prompt); });
  EXPECT_EQ(prompt.button, 6);
  EXPECT_EQ(prompt.modify.amount, Money(10));
  EXPECT_EQ(prompt.modify.operation, 0);
  EXPECT_EQ(prompt.modify.units, Money(0));
  EXPECT_EQ(prompt.set.amount, Money::FromRaw(75'000));
  EXPECT_EQ(prompt.set.units, Money(3));
}

// --- New -----------------------------------------------------------------------------------------

TEST_F(DialogTest, NewGameAnswersItsChoicesAndRemembersThem) {
  RollFile.RollFileName = "/rolls/monday.rol";
  RollFile.RollFileMode = RollFileRecord;
  NewGameChoices choices;
  std::optional<NewGameAnswer> answer;
  const auto ask = [&] { answer = AskNewGame(nullptr, choices); };
  Answer([](QDialog& window) { Press(window, Qt::Key_Return); }, ask);
  ASSERT_TRUE(answer);
  EXPECT_TRUE(answer->keepScripts);
  EXPECT_NE(answer->options.keepStacks, 0);
  EXPECT_NE(answer->options.keepSessions, 0);
  EXPECT_NE(answer->options.keepLogs, 0);
  EXPECT_EQ(answer->options.rollFileAction, ContinueRollFile);

  Answer(
      [](QDialog& window) {
        EXPECT_EQ(Child<QRadioButton>(window, "optContinue").text(), "Continue recording as is");
        Child<QCheckBox>(window, "chkPreserveCheckstacks").setChecked(false);
        Child<QCheckBox>(window, "chkPreservePrevSessions").setChecked(false);
        Child<QRadioButton>(window, "optRewind").setChecked(true);
        Press(window, Qt::Key_Return);
      },
      ask);
  EXPECT_EQ(answer->options.keepStacks, 0);
  EXPECT_EQ(answer->options.keepSessions, 0);
  EXPECT_NE(answer->options.keepLogs, 0);
  EXPECT_EQ(answer->options.rollFileAction, RewindRollFile);

  Answer(
      [](QDialog& window) {
        EXPECT_FALSE(Child<QCheckBox>(window, "chkPreserveCheckstacks").isChecked());
        Child<QCheckBox>(window, "chkPreserveAutoBets").setChecked(false);
        Child<QCheckBox>(window, "chkPreserveSessionsLogs").setChecked(false);
        Press(window, Qt::Key_Escape);
      },
      ask);
  EXPECT_FALSE(answer);
  EXPECT_TRUE(choices.PreserveAutoBets);  // a Cancel remembers nothing

  RollFile = {};
  Answer(
      [](QDialog& window) {
        EXPECT_FALSE(Child<QCheckBox>(window, "chkPreserveDiceRollFile").isEnabled());
        EXPECT_FALSE(Child<QRadioButton>(window, "optRewind").isEnabled());
        Child<QCheckBox>(window, "chkPreserveAutoBets").setChecked(false);
        Press(window, Qt::Key_Return);
      },
      ask);
  EXPECT_FALSE(answer->keepScripts);
  EXPECT_EQ(answer->options.rollFileAction, CloseRollFileNow);
  EXPECT_TRUE(choices.PreserveDiceRollFile && choices.Rewind);
}

// --- Files ---------------------------------------------------------------------------------------

class FileDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    SetAppFolder(Path(""));
    std::filesystem::create_directory(Path("older"));
    for (const char* name : {"Run 10.bet", "run 9.bet", "notes.txt", "older/first.bet"})
      std::ofstream(Path(name)) << "x";
  }

  std::string Path(const std::string& name) const { return folder_.Path() + name; }

  static QStringList Listed(QDialog& window) {
    QStringList names;
    auto& list = Child<QListWidget>(window, "filList");
    for (int row = 0; row < list.count(); ++row)
      names << list.item(row)->text();
    return names;
  }

  static void Pick(QDialog& window, const QString& name) {
    auto& list = Child<QListWidget>(window, "filList");
    list.setCurrentItem(list.findItems(name, Qt::MatchExactly).value(0));
  }

  static void Type(QDialog& window, const QString& name) {
    Child<QLineEdit>(window, "txtFileName").setText(name);
  }

  static std::string Ask(FileAction action,
                         const std::function<void(QDialog&)>& act,
                         const std::string& offered = "") {
    std::string chosen;
    Answer(act, [&] { chosen = AskFile(nullptr, action, offered); });
    return chosen;
  }

  TemporaryFolder folder_;
};

TEST_F(FileDialogTest, ListsFoldersAndFilesOfTheFilterInNaturalOrder) {
  const std::string chosen = Ask(FileAction::OpenScript, [](QDialog& window) {
    EXPECT_EQ(window.windowTitle(), "Open auto-bet file");
    EXPECT_EQ(Child<QPushButton>(window, "cmdOK").text(), "&Open");
    EXPECT_EQ(Listed(window), QStringList({"..", "older", "run 9.bet", "Run 10.bet"}));
    Child<QComboBox>(window, "cmbFilter").setCurrentIndex(3);
    EXPECT_EQ(Listed(window), QStringList({"..", "older", "notes.txt", "run 9.bet", "Run 10.bet"}));
    Child<QComboBox>(window, "cmbFilter").setCurrentIndex(0);
    Pick(window, "Run 10.bet");
    Press(Child(window, "filList"), Qt::Key_Return);
  });
  EXPECT_EQ(chosen, Path("Run 10.bet"));
}

TEST_F(FileDialogTest, GoesThroughFoldersAndKeepsTheLastOne) {
  const std::string chosen = Ask(FileAction::OpenScript, [](QDialog& window) {
    Pick(window, "older");
    Press(Child(window, "filList"), Qt::Key_Return);
    EXPECT_EQ(Listed(window), QStringList({"..", "first.bet"}));
    Press(Child(window, "filList"), Qt::Key_Backspace);
    EXPECT_EQ(Listed(window).size(), 4);
    Type(window, "older");
    Click(window, "cmdOK");
    EXPECT_EQ(Listed(window), QStringList({"..", "first.bet"}));
    Pick(window, "..");
    Click(window, "cmdOK");
    EXPECT_EQ(Listed(window).size(), 4);
    auto& list = Child<QListWidget>(window, "filList");
    const QPoint folder = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, folder);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, folder);
    EXPECT_EQ(Listed(window), QStringList({"..", "first.bet"}));
    Press(Child(window, "filList"), Qt::Key_Escape);
  });
  EXPECT_EQ(chosen, "");
  EXPECT_EQ(Message.MsgResult, AnswerCancel);
  EXPECT_EQ(FileDialog.LastFolder[AutoBetFiles], Path("older/"));
}

TEST_F(FileDialogTest, AsksBeforeItOverwrites) {
  for (const bool overwrites : {false, true}) {
    const std::string chosen = Ask(
        FileAction::SaveScript,
        [&](QDialog& window) {
          EXPECT_EQ(Child<QLineEdit>(window, "txtFileName").text(), "run 9.bet");
          Answer([&](QDialog& box) { Press(box, overwrites ? Qt::Key_Y : Qt::Key_N); },
                 [&] { Press(window, Qt::Key_Return); });
          EXPECT_EQ(window.isVisible(), !overwrites);
          if (overwrites) return;
          Type(window, "run 11");
          Click(window, "cmdOK");
        },
        Path("run 9.bet"));
    EXPECT_EQ(chosen, Path(overwrites ? "run 9.bet" : "run 11.bet"));
  }
}

TEST_F(FileDialogTest, DeletesAListedFileAndReadsTheFolderAgain) {
  Ask(FileAction::OpenScript, [this](QDialog& window) {
    Pick(window, "run 9.bet");
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_Y}) {
      Answer([key](QDialog& box) { Press(box, key); },
             [&] { Press(Child(window, "filList"), Qt::Key_Delete); });
      EXPECT_EQ(std::filesystem::exists(Path("run 9.bet")), key == Qt::Key_N);
    }
    EXPECT_EQ(Listed(window), QStringList({"..", "older", "Run 10.bet"}));
    std::ofstream(Path("new.bet")) << "x";
    Press(window, Qt::Key_F5);
    EXPECT_EQ(Listed(window), QStringList({"..", "older", "new.bet", "Run 10.bet"}));
    Press(window, Qt::Key_Escape);
  });
}

TEST_F(FileDialogTest, HasRoomForItsTextsInEveryLanguage) {
  for (const FileAction action : {FileAction::SaveScript, FileAction::RenameSessionsLog}) {
    WalkLanguages(QString("file%1").arg(static_cast<int>(action)),
                  [action] { AskFile(nullptr, action, "mine.bet"); });
  }
}

TEST_F(DialogTest, NamesSortNaturallyInEveryLanguage) {
  const QStringList sorted = {"a1", "A2", "a02b", "a10", "b", "Çelik 3", "Çelik 12"};
  for (int32_t language = 0; language < LanguageCount; ++language) {
    SetLanguage(language);
    const QCollator order = NaturalOrder();
    for (int k = 0; k + 1 < sorted.size(); ++k)
      EXPECT_LT(order.compare(sorted[k], sorted[k + 1]), 0) << language << ' ' << k;
  }
}

// --- Languages -----------------------------------------------------------------------------------

TEST_F(DialogTest, LanguageTakesEffectAtOnce) {
  Answer(
      [](QDialog& window) {
        auto& lstLanguages = Child<QListWidget>(window, "lstLanguages");
        EXPECT_EQ(lstLanguages.count(), LanguageCount);
        const QRect third = lstLanguages.visualItemRect(lstLanguages.item(German));
        QTest::mouseClick(lstLanguages.viewport(), Qt::LeftButton, {}, third.center());
      },
      [] { EXPECT_TRUE(AskLanguage(nullptr)); });
  EXPECT_EQ(Settings.Language, German);
  Answer(
      [](QDialog& window) {
        Press(window, Qt::Key_Down);
        Press(window, Qt::Key_Escape);
      },
      [] { EXPECT_FALSE(AskLanguage(nullptr)); });
  EXPECT_EQ(Settings.Language, German);
  Answer(
      [](QDialog& window) {
        Press(window, Qt::Key_Down);
        Press(window, Qt::Key_Return);
      },
      [] { AskLanguage(nullptr); });
  EXPECT_EQ(Settings.Language, French);
}

TEST_F(DialogTest, DialogsOfPlayHaveRoomForTheirTextsInEveryLanguage) {
  for (const Outcome outcome : {Outcome::Won, Outcome::Lost, Outcome::Idle}) {
    WalkLanguages(QString("settle%1").arg(static_cast<int>(outcome)), [outcome] {
      SettlePrompt prompt = SomePrompt(outcome);
      AskSettleBet(nullptr, prompt);
    });
  }
  RollFile.RollFileName = "/rolls/monday.rol";
  NewGameChoices choices;
  WalkLanguages("new", [&] { AskNewGame(nullptr, choices); });
  WalkLanguages("language", [] { AskLanguage(nullptr); });
}

}  // namespace
}  // namespace tessarel
