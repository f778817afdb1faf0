// texts-compiler KEYS.h TABLES.cpp FIRST.txt OTHER.txt...: makes the keys and tables of the
// program's texts from one catalogue a language. The build runs it; the first catalogue is the
// measure of the others.
#include <fstream>
#include <iostream>
#include <iterator>

#include "texts/compiler/catalogue.h"

namespace {

using namespace tessarel;

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw catalogue::Fault(path, 0, "cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

// A file that would stay the same is left alone, so that nothing is compiled again for it.
void Write(const std::string& path, const std::string& content) {
  if (std::ifstream(path) && ContentOf(path) == content) return;
  std::ofstream file(path, std::ios::binary);
  if (!(file << content) || !file.flush()) throw catalogue::Fault(path, 0, "cannot be written");
}

}  // namespace

int main(int count, char** arguments) {
  try {
    if (count < 4) throw std::runtime_error("usage: texts-compiler KEYS.h TABLES.cpp FIRST.txt...");
    std::vector<catalogue::Catalogue> catalogues;
    for (int k = 3; k < count; ++k) {
      catalogues.push_back(catalogue::Read(arguments[k], ContentOf(arguments[k])));
      catalogue::Compare(catalogues.front(), catalogues.back());
    }
    Write(arguments[1], catalogue::Header(catalogues));
    Write(arguments[2], catalogue::Tables(catalogues));
  } catch (const std::exception& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
  }
  return 0;
}
