// Random matrices on which tests try numerics: ordinary ones, and those where a test of a pivot, a
// tie, a range or a comparison shows.
#pragma once

#include "harness/memory.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace harness {

inline constexpr double nan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinity = std::numeric_limits<double>::infinity();

inline double uniform(Random& random) {
    return static_cast<double>(static_cast<std::int64_t>(random())) * 0x1p-63;
}
inline int integer(Random& random, int low, int high) {
    return low + static_cast<int>(random() % static_cast<std::uint64_t>(high - low + 1));
}
template <std::size_t size>
double oneOf(const double (&values)[size], Random& random) {
    return values[random() % size];
}
inline double zero(Random& random) {
    return oneOf({0.0, -0.0}, random);
}
inline double unit(Random& random) {
    return oneOf({1.0, -1.0}, random);
}

// Ordinary numbers of several magnitudes, which some calls mix with signed zeros, with numbers that
// overflow and underflow, or with everything.
template <class T>
T mixedValue(Random& random, std::uint64_t mix) {
    using Limits = std::numeric_limits<T>;
    static constexpr T special[] = {T(0),
                                    -T(0),
                                    T(1),
                                    -T(1),
                                    Limits::denorm_min(),
                                    -Limits::min(),
                                    Limits::epsilon(),
                                    Limits::max(),
                                    Limits::lowest(),
                                    Limits::infinity(),
                                    -Limits::infinity(),
                                    Limits::quiet_NaN()};
    static constexpr struct {
        std::uint64_t kinds;
        std::uint64_t in64;
    } mixes[] = {{1, 0}, {2, 48}, {9, 32}, {12, 4}};
    const auto [kinds, in64] = mixes[mix % std::size(mixes)];
    const std::uint64_t bits = random();
    if (bits % 64 < in64) return special[(bits >> 8) % kinds];
    return static_cast<T>(static_cast<std::int32_t>(bits >> 32)) / static_cast<T>(1 << bits % 30);
}

struct Size {
    int rows;
    int columns;

    Size(int n) : rows(n), columns(n) {}
    Size(int height, int width) : rows(height), columns(width) {}
    bool isSquare() const { return rows == columns; }
};

// A matrix, before it is rounded to the element type.
struct Numbers {
    Size size;
    std::vector<double> elements; // by rows

    double operator()(int i, int j) const { return elements.begin()[i * size.columns + j]; }
    double& operator()(int i, int j) { return elements.begin()[i * size.columns + j]; }
};

// Of the element type.
struct Bounds {
    double eps, smallest, largest;

    template <class T>
    static Bounds of() {
        using Limits = std::numeric_limits<T>;
        return {Limits::epsilon(), Limits::min(), Limits::max()};
    }
    double nearEps(Random& r) const {
        return oneOf({eps - eps * eps / 2, eps, eps + eps * eps}, r);
    }
};

using Input = Numbers(Size, const Bounds&, Random&);

template <class Value>
Numbers made(Size size, const Value& value) {
    Numbers matrix{size, {}};
    for (int i = 0; i < size.rows; ++i) {
        for (int j = 0; j < size.columns; ++j) matrix.elements.push_back(value(i, j));
    }
    return matrix;
}
inline Numbers scaled(double scale, Size size, Random& r) {
    return made(size, [&](int, int) { return scale * uniform(r); });
}
inline Numbers integers(Size size, int largest, Random& r) {
    return made(size, [&](int, int) { return integer(r, -largest, largest); });
}
inline Numbers withRowsShuffled(Numbers matrix, Random& r) {
    for (int i = matrix.size.rows; i > 1; --i) {
        const int other = integer(r, 0, i - 1);
        for (int j = 0; j < matrix.size.columns; ++j) std::swap(matrix(i - 1, j), matrix(other, j));
    }
    return matrix;
}
template <std::size_t size>
Numbers sprinkled(const double (&values)[size], Numbers matrix, Random& r) {
    for (int k = integer(r, 1, 3); k > 0; --k) {
        const std::size_t place = r.below(matrix.elements.size());
        matrix.elements[place] = oneOf(values, r);
    }
    return matrix;
}

inline Numbers dense(Size size, const Bounds&, Random& r) {
    return scaled(1, size, r);
}
inline Numbers dominant(Size size, const Bounds&, Random& r) {
    return made(size,
                [&](int i, int j) { return uniform(r) + (i == j ? size.columns * unit(r) : 0); });
}
inline Numbers rowTwice(Size size, const Bounds&, Random& r) {
    Numbers matrix = integers(size, 3, r);
    const int i = integer(r, 0, size.rows - 1);
    for (int j = 0; j < size.columns; ++j) {
        matrix(i, j) = size.rows > 1 ? matrix((i + 1) % size.rows, j) : 0;
    }
    return matrix;
}

// Ties of pivots that leave rounding errors.
inline Numbers roundingTies(Size size, const Bounds&, Random& r) {
    return made(size, [&](int, int) { return 0.3 * integer(r, -2, 2); });
}

// The diagonal holds the pivots, but for the order of rows. One of them is at the threshold; so is
// the determinant.
inline Numbers triangular(Size size, const Bounds& of, Random& r) {
    Numbers matrix = made(size, [&](int i, int j) {
        return i > j ? zero(r) : i == j ? unit(r) : integer(r, -2, 2);
    });
    const int k = integer(r, 0, 2) * (std::min(size.rows, size.columns) - 1) / 2;
    matrix(k, k) = of.nearEps(r) * unit(r);
    return withRowsShuffled(matrix, r);
}

inline constexpr Input* inputs[] = {
    dense,
    dominant,
    rowTwice,
    triangular,
    [](Size size, const Bounds&, Random& r) { return integers(size, 1, r); },
    [](Size size, const Bounds&, Random& r) { return integers(size, 3, r); },
    roundingTies,
    [](Size size, const Bounds&, Random& r) {
        return made(size, [&](int, int) { return unit(r); });
    },
    [](Size size, const Bounds&, Random& r) {
        return made(size, [&](int, int) { return oneOf({0.0, -0.0, 1.0, -1.0}, r); });
    },
    [](Size size, const Bounds&, Random& r) { // permutations
        return withRowsShuffled(
            made(size, [&](int i, int j) { return i == j ? uniform(r) : zero(r); }), r);
    },
    [](Size size, const Bounds&, Random& r) { // blocks on the diagonal
        return made(size, [&](int i, int j) { return i / 2 == j / 2 ? uniform(r) : zero(r); });
    },
    [](Size size, const Bounds&, Random& r) { // zeros of both signs
        return made(size, [&](int, int) { return integer(r, 0, 4) > 0 ? zero(r) : unit(r); });
    },
    [](Size size, const Bounds& of, Random& r) { // a column of zeros
        const int zeros = integer(r, 0, size.columns - 1);
        const double scale = oneOf({1, std::pow(of.largest, 0.7)}, r);
        return made(size, [&](int, int j) { return j == zeros ? zero(r) : scale * uniform(r); });
    },
    [](Size size, const Bounds& of, Random& r) { // minors with pivots at the threshold
        return withRowsShuffled(
            made(size, [&](int i,
                           int j) { return i == j ? unit(r) : of.nearEps(r) * integer(r, -1, 1); }),
            r);
    },
    [](Size size, const Bounds& of, Random& r) { // determinants around the threshold
        return scaled(2 * std::pow(of.eps, 1.0 / size.columns), size, r);
    },
    [](Size size, const Bounds& of, Random& r) { return scaled(of.eps * 4, size, r); },
    [](Size size, const Bounds&, Random& r) {
        return made(size, [&](int, int) { return uniform(r) * std::pow(10, integer(r, -8, 8)); });
    },
    [](Size size, const Bounds& of, Random& r) { return scaled(of.smallest, size, r); },
    [](Size size, const Bounds& of, Random& r) { return scaled(std::sqrt(of.smallest), size, r); },
    [](Size size, const Bounds& of, Random& r) { return scaled(of.largest, size, r); },
    [](Size size, const Bounds& of, Random& r) { return scaled(std::sqrt(of.largest), size, r); },
    [](Size size, const Bounds& of, Random& r) { return sprinkled({nan}, dense(size, of, r), r); },
    [](Size size, const Bounds& of, Random& r) {
        return sprinkled({infinity, -infinity}, dense(size, of, r), r);
    },
    [](Size size, const Bounds&, Random& r) {
        return sprinkled({nan, infinity, 0, -infinity}, integers(size, 1, r), r);
    },
    [](Size size, const Bounds& of, Random& r) {
        return sprinkled({nan, infinity}, triangular(size, of, r), r);
    },
};

} // namespace harness
