#pragma once

// Taking file paths apart as plain text. Both "/" and "\" separate, so that names written on
// either system come apart alike. Only FileExists looks at the disk.

#include "platform/base/Export.h"

#include <string>

namespace zvk_filesystem {

// The part behind the last separator, or the whole text if there is none.
ORVA_API std::string Filename(const std::string& path);

// The part up to and including the last separator, or empty if there is none. Mode 0 keeps
// the separators as they are; mode 1 turns them all into "\", mode 2 into "/". Any other
// mode gives an empty text.
ORVA_API std::string Path(const std::string& path, int mode);

// Everything before the last "." of the whole text, even one in a directory name: 'C:\a.b\c'
// gives 'C:\a'. The whole text if there is no ".".
ORVA_API std::string PathAndBase(const std::string& path);

// Filename without its last "." and what follows.
ORVA_API std::string Basename(const std::string& path);

// What follows the last "." of Filename, or empty.
ORVA_API std::string Extension(const std::string& path);

// True if the path names a file that can be opened for reading (not a directory).
ORVA_API bool FileExists(const std::string& path);

// Replaces each `from` by `to` in place.
ORVA_API std::string& replace(std::string& text, char from, char to);

} // namespace zvk_filesystem
