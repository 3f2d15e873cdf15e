#pragma once

// Least-squares polynomials for the best-fit plotting methods.

#include "platform/base/Export.h"

#include <cstddef>
#include <vector>

// Fits a polynomial of `order` (1 to 9) to the points, skipping missing values. The result
// holds order + 1 coefficients, lowest order first; false when the points cannot decide them.
ORVA_API bool FitPolynomial(const double* x, const double* y, size_t count, int order,
                            std::vector<double>& coefficients);
double EvaluatePolynomial(const std::vector<double>& coefficients, double x);
