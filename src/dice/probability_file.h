// Probability files (".prb"): the matrix in fixed records after a line of text that names the
// format. A file is refused as a whole or taken as it stands.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dice/probability.h"

namespace tessarel {

// The file that goes with the automatic game file.
inline constexpr std::string_view AutomaticProbabilityFile = "default.prb";

// Reads the matrix and makes the file its own; a relative name is taken from the program's folder.
// Returns false, with all left as it was, when there is no such file, which is not reported, and
// when it is no probability file, which is. File faults when it cannot be read.
bool OpenProbabilityFile(const std::string& name);

// Writes the matrix and makes the file its own. On a file fault an older file stands as it was.
void SaveProbabilityFile(const std::string& name);

// The matrix that the bytes of a file hold. Empty when they are no probability file: another format
// line (letter case counts), less than the whole matrix, or a matrix without any share.
std::optional<ProbabilityPlanes> MatrixOfBytes(std::string_view bytes);

// What a caller does about a matrix that is not saved.
enum class SaveChoice { GoOn, SaveUnderItsName, SaveUnderNewName, Cancel };

// The questions before the program ends, and before a new matrix. They ask only if something would
// be lost; only the first can be cancelled.
SaveChoice AskToSaveOnExit();
SaveChoice AskToSaveBeforeNew();

}  // namespace tessarel
