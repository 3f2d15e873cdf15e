#include "chart/ChartFit.h"

#include "chart/ChartPropertyIds.h"

#include <cmath>

namespace {

bool Usable(double x, double y) {
    return std::isfinite(x) && std::isfinite(y) && x != chartprop::MissingValue &&
           y != chartprop::MissingValue;
}

// Solves the square system in place by elimination with partial pivoting.
bool Solve(std::vector<std::vector<long double>>& a, std::vector<long double>& b) {
    const size_t n = b.size();
    for (size_t col = 0; col < n; ++col) {
        size_t pivot = col;
        for (size_t row = col + 1; row < n; ++row)
            if (std::fabs(a[row][col]) > std::fabs(a[pivot][col]))
                pivot = row;
        if (std::fabs(a[pivot][col]) < 1e-12L)
            return false;
        std::swap(a[pivot], a[col]);
        std::swap(b[pivot], b[col]);
        for (size_t row = col + 1; row < n; ++row) {
            const long double factor = a[row][col] / a[col][col];
            for (size_t k = col; k < n; ++k)
                a[row][k] -= factor * a[col][k];
            b[row] -= factor * b[col];
        }
    }
    for (size_t i = n; i-- > 0;) {
        long double sum = b[i];
        for (size_t k = i + 1; k < n; ++k)
            sum -= a[i][k] * b[k];
        b[i] = sum / a[i][i];
    }
    return true;
}

} // namespace

bool FitPolynomial(const double* x, const double* y, size_t count, int order,
                   std::vector<double>& coefficients) {
    if (order < 1 || order > 9 || !x || !y)
        return false;
    // Fit in t = (x - centre) / scale, where the normal equations are well conditioned, then
    // expand back to powers of x.
    long double low = 0, high = 0;
    size_t used = 0;
    for (size_t i = 0; i < count; ++i) {
        if (!Usable(x[i], y[i]))
            continue;
        low = used == 0 ? x[i] : std::min<long double>(low, x[i]);
        high = used == 0 ? x[i] : std::max<long double>(high, x[i]);
        ++used;
    }
    if (used < size_t(order) + 1 || high <= low)
        return false;
    const long double centre = (low + high) / 2;
    const long double scale = (high - low) / 2;
    const size_t terms = size_t(order) + 1;
    std::vector<long double> powerSums(2 * terms - 1, 0);
    std::vector<long double> rhs(terms, 0);
    for (size_t i = 0; i < count; ++i) {
        if (!Usable(x[i], y[i]))
            continue;
        const long double t = (x[i] - centre) / scale;
        long double power = 1;
        for (size_t k = 0; k < powerSums.size(); ++k) {
            powerSums[k] += power;
            if (k < terms)
                rhs[k] += power * y[i];
            power *= t;
        }
    }
    std::vector<std::vector<long double>> normal(terms, std::vector<long double>(terms));
    for (size_t r = 0; r < terms; ++r)
        for (size_t c = 0; c < terms; ++c)
            normal[r][c] = powerSums[r + c];
    if (!Solve(normal, rhs))
        return false;
    // a_k t^k with t = (x - c) / s: expand each (x - c)^k binomially.
    std::vector<long double> result(terms, 0);
    for (size_t k = 0; k < terms; ++k) {
        const long double factor = rhs[k] / std::pow(scale, (long double)k);
        long double binomial = 1;
        for (size_t j = 0; j <= k; ++j) {
            // term binomial(k, j) x^j (-c)^(k - j)
            result[j] += factor * binomial * std::pow(-centre, (long double)(k - j));
            binomial = binomial * (k - j) / (j + 1);
        }
    }
    coefficients.assign(result.begin(), result.end());
    return true;
}

double EvaluatePolynomial(const std::vector<double>& coefficients, double x) {
    double value = 0;
    for (size_t k = coefficients.size(); k-- > 0;)
        value = value * x + coefficients[k];
    return value;
}
