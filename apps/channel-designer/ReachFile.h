#pragma once

// Reach files: plain text, one record a line, read with the library's text data reader so that
// an error names its line. Blank lines and lines that begin with "#" are skipped.
//
//   reach "Mill Creek below the road culvert"
//   discharge 4.5
//   section <chainage> <invert> <bed width> <side slope> <barrels> "<lining>" <yyyy-mm-dd>
//           <surveyed 0|1> #RRGGBB const <m3/s> | curve <count> <hours> <m3/s> ...

#include "Reach.h"

#include <string>

// False, with `error` saying where and what, for a file that cannot be read or holds a bad
// record; `reach` is then left as it was.
bool ReadReachFile(const std::string& path, Reach& reach, std::string& error);
bool WriteReachFile(const std::string& path, const Reach& reach);
