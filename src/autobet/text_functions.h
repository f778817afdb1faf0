// The functions that take texts apart and put them together. Positions count characters from 1;
// what lies beyond the end of a text is empty. No result is longer than MaxTextLength: error 998.
#pragma once

#include "autobet/function_call.h"

namespace tessarel {

ScriptValue CodeOfText(const FunctionCall& call);     // asc; 0 for the empty text
ScriptValue ValueOfText(const FunctionCall& call);    // val
ScriptValue LengthOfText(const FunctionCall& call);   // len
ScriptValue FindInText(const FunctionCall& call);     // instr
ScriptValue KeepStretch(const FunctionCall& call);    // left$, right$, mid$
ScriptValue RemoveStretch(const FunctionCall& call);  // removeleft$, removeright$, removemid$
ScriptValue InsertText(const FunctionCall& call);     // insert$
ScriptValue TextOfNumber(const FunctionCall& call);   // str$
ScriptValue TextOfCode(const FunctionCall& call);     // chr$
ScriptValue BlankText(const FunctionCall& call);      // space$

}  // namespace tessarel
