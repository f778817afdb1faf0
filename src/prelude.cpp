// Compiles the headers that every floor shares; see CMakeLists.txt.
