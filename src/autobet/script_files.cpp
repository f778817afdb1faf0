#include "autobet/script_files.h"
