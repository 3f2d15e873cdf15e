#pragma once

// The one export macro of every ORVAUtil library. Symbols are hidden by default; a class or
// function marked ORVA_API is part of a library's interface. On ELF the same attribute serves
// the library that defines a symbol and the code that uses it.
#define ORVA_API __attribute__((visibility("default")))
