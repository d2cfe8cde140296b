// The data of the benchmarks: arrays of matrices in all placements, and the library's functions
// called with them.
#pragma once

#include "bench.h"
#include "lanes.h"
#include "qorcore.h"
#include "qorm.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <numeric>
#include <random>
#include <tuple>
#include <utility>

namespace bench {

enum class Placement {
    packed,    // by strides, no gaps
    padded,    // by strides, a row and a column of gap behind each object
    adjacent,  // a pointer per element, the objects of each position side by side
    scattered, // a pointer per element, the objects as in padded
    list       // a pointer per object, packed objects in random order
};

inline const char* nameOf(Placement placement) {
    constexpr const char* names[] = {"packed", "padded", "P adjacent", "P scattered", "L"};
    return names[static_cast<int>(placement)];
}
template <class T>
constexpr const char* nameOfType = sizeof(T) == 4 ? "32f" : "64f";

// Elements of gap behind each row of a matrix, and rows of gap behind each matrix.
constexpr int gapOf(Placement placement) {
    return placement == Placement::padded || placement == Placement::scattered ? 1 : 0;
}

inline std::minstd_rand& random() {
    static std::minstd_rand generator(1);
    return generator;
}
// In [-1, 1).
template <class T>
T randomValue() {
    return static_cast<T>((static_cast<double>(random()()) - 0x1p30) * 0x1p-30);
}

template <class T>
class Matrices {
public:
    Matrices(int rowCount, int columnCount, int objects, Placement where)
        : rows(rowCount), columns(columnCount), count(objects), placement(where) {
        const std::ptrdiff_t rowStep = columns + gapOf(where);
        const std::ptrdiff_t objectStep = rowStep * (rows + gapOf(where));
        const std::ptrdiff_t line = 64 / sizeof(T);
        plane = (count / line + 2) * line;
        const std::ptrdiff_t elements =
            where == Placement::adjacent ? plane * rows * columns : objectStep * count;
        const std::size_t bytes = static_cast<std::size_t>(elements) * sizeof(T);
        storage.reset(static_cast<T*>(std::aligned_alloc(64, (bytes + 63) / 64 * 64)));
        if (!storage) throw std::bad_alloc();

        const std::ptrdiff_t step = where == Placement::adjacent ? 1 : objectStep;
        stride0 = static_cast<std::int32_t>(step * sizeof(T));
        stride1 = static_cast<std::int32_t>(rowStep * sizeof(T));
        if (where == Placement::list) {
            for (int k = 0; k < count; ++k) table.push_back(storage.get() + k * objectStep);
            std::shuffle(table.begin(), table.end(), random());
        } else {
            const bool planes = where == Placement::adjacent;
            for (int p = 0; p < rows * columns; ++p) {
                table.push_back(storage.get() +
                                (planes ? p * plane : p / columns * rowStep + p % columns));
            }
        }
        std::fill_n(storage.get(), elements, T(0));
    }

    T* base() const { return storage.get(); }
    T* const* pointers() const { return table.data(); }

    // From one object to the next one, in elements; not of a list.
    std::ptrdiff_t step() const { return stride0 / static_cast<std::ptrdiff_t>(sizeof(T)); }
    // Of objects side by side.
    Planes<T> planes() const { return {base(), plane}; }

    T& operator()(int k, int i, int j) const {
        const int p = i * columns + j;
        if (placement == Placement::list) return pointers()[k][p];
        return pointers()[p][k * step()];
    }

    template <class Work>
    void forEach(const Work& work) const {
        for (int k = 0; k < count; ++k) {
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j < columns; ++j) work((*this)(k, i, j));
            }
        }
    }
    void fillRandomly() const {
        forEach([](T& x) { x = randomValue<T>(); });
    }
    // One element dominates its row and its column: on the diagonal or, for a search of pivots that
    // finds something to exchange, anywhere.
    void fillDominated(bool exchanged) const {
        fillRandomly();
        std::vector<int> order(static_cast<std::size_t>(rows));
        std::iota(order.begin(), order.end(), 0);
        for (int k = 0; k < count; ++k) {
            // The last row stays: in small LU factorisations the last test looks at its place.
            if (exchanged) std::shuffle(order.begin(), order.end() - 1, random());
            for (int j = 0; j < columns; ++j) (*this)(k, order[j], j) += static_cast<T>(rows);
        }
    }
    // m m^T + n I
    void fillPositiveDefinite() const {
        const int n = rows;
        std::vector<T> m(static_cast<std::size_t>(n * n));
        for (int k = 0; k < count; ++k) {
            std::generate(m.begin(), m.end(), randomValue<T>);
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) {
                    (*this)(k, i, j) = std::inner_product(&m[i * n], &m[i * n] + n, &m[j * n],
                                                          static_cast<T>(i == j ? n : 0));
                }
            }
        }
    }
    // The sum of squares of all elements, which become zero.
    double takeSquares() const {
        double sum = 0;
        forEach([&](T& x) { sum += double{x} * double{std::exchange(x, T(0))}; });
        return sum;
    }

    auto strides() const {
        return std::tuple(base(), stride0, stride1, static_cast<std::int32_t>(sizeof(T)));
    }
    auto pointerPerElement() const { return std::tuple(pointers(), std::int32_t{0}, stride0); }
    auto pointerPerObject() const {
        return std::tuple(pointers(), std::int32_t{0}, stride1,
                          static_cast<std::int32_t>(sizeof(T)));
    }

private:
    struct Free {
        void operator()(T* p) const { std::free(p); }
    };

    int rows;
    int columns;
    int count;
    Placement placement;
    std::ptrdiff_t plane; // from one position's objects to the next one's
    std::unique_ptr<T[], Free> storage;
    std::vector<T*> table;
    std::int32_t stride0;
    std::int32_t stride1;
};

// The first matrix of an array as the single operand of a call.
template <class T>
struct Single {
    const Matrices<T>& matrices;

    auto strides() const {
        const auto [base, stride0, stride1, stride2] = matrices.strides();
        return std::tuple(base, stride1, stride2);
    }
    auto pointerPerElement() const { return std::tuple(matrices.pointers(), std::int32_t{0}); }
    auto pointerPerObject() const {
        const auto [table, shift, stride1, stride2] = matrices.pointerPerObject();
        return std::tuple(table[0], stride1, stride2);
    }
};

// The rows of an array of 1 x n matrices as vectors.
template <class T>
struct Vectors {
    const Matrices<T>& rows;

    auto strides() const {
        const auto [base, stride0, stride1, stride2] = rows.strides();
        return std::tuple(base, stride0, stride2);
    }
    auto pointerPerElement() const { return rows.pointerPerElement(); }
    auto pointerPerObject() const {
        const auto [table, shift, stride1, stride2] = rows.pointerPerObject();
        return std::tuple(table, shift, stride2);
    }
};

// The functions of element type T of a shape, one for each layout.
#define QORM_LAYOUTS(T, name) \
    bench::ofType<T>(std::make_tuple(name##_32f, name##_32f_P, name##_32f_L), \
                     std::make_tuple(name##_64f, name##_64f_P, name##_64f_L))

template <class T, class Floats, class Doubles>
auto ofType(Floats floats, Doubles doubles) {
    if constexpr (sizeof(T) == 4)
        return floats;
    else
        return doubles;
}

// Calls the function of the placement's layout. Arguments are Matrices, Singles and plain values.
template <class Functions, class... Arguments>
bool callLibrary(const Functions& functions, Placement placement, int threads,
                 const Arguments&... arguments) {
    const auto unpack = [](const auto& argument, auto layout) {
        if constexpr (requires { argument.strides(); })
            return layout(argument);
        else
            return std::tuple(argument);
    };
    const auto call = [&](auto function, auto layout) {
        return std::apply(function, std::tuple_cat(unpack(arguments, layout)...)) == qorStatusOk;
    };
    qorSetThreadCount(threads);
    switch (placement) {
    case Placement::packed:
    case Placement::padded:
        return call(std::get<0>(functions), [](const auto& a) { return a.strides(); });
    case Placement::adjacent:
    case Placement::scattered:
        return call(std::get<1>(functions), [](const auto& a) { return a.pointerPerElement(); });
    case Placement::list:
        break;
    }
    return call(std::get<2>(functions), [](const auto& a) { return a.pointerPerObject(); });
}

// work(size) for each of the sizes, as constants, and both types.
template <int... sizes, class Work>
void forSizes(const Work& work) {
    (work.template operator()<float, sizes>(), ...);
    (work.template operator()<double, sizes>(), ...);
}

// Contenders of a table that compares thread counts, for a run(threads). Below the threshold from
// which an array form spreads over threads both run on one.
template <class Run>
std::vector<Contender> twoThreadsAndOne(const Run& run) {
    return {{"2 threads", Role::library, [run] { return run(2); }},
            {"1 thread", Role::peer, [run] { return run(1); }}};
}

// measure(count) around the least count whose work reaches the threshold.
template <class Measure>
void sweepCount(int threshold, int workPerObject, const Measure& measure) {
    const int least = (threshold + workPerObject - 1) / workPerObject;
    for (const int count : {least / 2, least - 1, least, 2 * least, 4 * least, 16 * least}) {
        measure(count);
    }
}

} // namespace bench
