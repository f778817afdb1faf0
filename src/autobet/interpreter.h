// The interpreter: runs the program of all active scripts once, after every roll and on request. A
// script is a body that runs once a roll; what it remembers stands at the table.
#pragma once

#include <cstdint>
#include <string>

#include "autobet/values.h"
#include "state/scripts.h"

namespace tessarel {

// What a script that runs step by step has just done.
struct ScriptStep {
  int place = 0;      // whose script; 0 without a seat
  int32_t line = 0;   // of the statement, from 1
  std::string text;   // the status, lines separated by carriage returns
  std::string title;  // of the steps window
};

// Compiles the program of all active scripts; Scripts.ProgramReady tells whether it can run. The
// first script in error is reported with its player's name, and nothing is ready. While a cycle
// runs (a message of a script serves events) nothing is compiled and nothing is ready.
void CheckScriptErrors();

// Makes the script of slot 0 the whole program. Returns false, with the error kept for nobody, when
// it does not compile, and while a cycle runs. The active scripts have to be compiled again
// afterwards.
bool CompileHotKeyScript();

// One cycle of the program, which has to be ready. Run-time errors end their statement only.
void RunAutoBet();

}  // namespace tessarel
