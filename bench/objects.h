// How the code of a peer gets at matrices: row by row, with steps that the compiler knows.
#pragma once

#include "operands.h"

#include <array>

// Before a loop over objects, none of which depends on another.
#if defined(__clang__)
#define BENCH_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#else
#define BENCH_INDEPENDENT _Pragma("GCC ivdep")
#endif

namespace bench {

// work(d), where what it writes through d is read through no other pointer. All that it calls
// becomes part of it: compilers make of a loop over objects what they can.
template <class T, class Work>
[[gnu::noinline, gnu::flatten]] void writeTo(T* __restrict d, const Work& work) {
    work(d);
}

// Steps of an array's elements: from row to row and from object to object.
template <int rows, int columns, Placement placement>
struct Steps {
    static constexpr int row = columns + gapOf(placement);
    static constexpr std::ptrdiff_t object = row * (rows + gapOf(placement));
};

// The matrices of an array. Those whose elements have a pointer each are copied, and what was
// written is copied back.
template <class T, int rows, Placement placement, int columns = rows>
class Objects {
    static constexpr int size = rows * columns;
    using Step = Steps<rows, columns, placement>;

public:
    static constexpr bool areCopied =
        placement == Placement::adjacent || placement == Placement::scattered;
    // From row to row, in elements.
    static constexpr int rowStep = areCopied ? columns : Step::row;

    explicit Objects(const Matrices<T>& array) : Objects(array, array.base()) {}
    Objects(const Matrices<T>& array, T* first) : matrices(array), base(first) {}

    // Both convert to a pointer, for as long as they live.
    auto read(std::ptrdiff_t k) const {
        if constexpr (areCopied)
            return Copy(matrices, k);
        else
            return static_cast<const T*>(address(k));
    }
    auto write(std::ptrdiff_t k) const {
        if constexpr (areCopied)
            return CopyBack(matrices, k);
        else
            return address(k);
    }

private:
    class Copy {
    public:
        Copy(const Matrices<T>& matrices, std::ptrdiff_t k) {
            for (int p = 0; p < size; ++p)
                elements[p] = matrices.pointers()[p][k * matrices.step()];
        }
        operator const T*() const { return elements.data(); }

    private:
        std::array<T, size> elements;
    };

    class CopyBack {
    public:
        CopyBack(const Matrices<T>& array, std::ptrdiff_t index) : matrices(array), k(index) {}
        CopyBack(const CopyBack&) = delete;
        CopyBack& operator=(const CopyBack&) = delete;
        ~CopyBack() {
            for (int p = 0; p < size; ++p)
                matrices.pointers()[p][k * matrices.step()] = elements[p];
        }
        operator T*() { return elements.data(); }

    private:
        const Matrices<T>& matrices;
        std::ptrdiff_t k;
        std::array<T, size> elements;
    };

    T* address(std::ptrdiff_t k) const {
        if constexpr (placement == Placement::list)
            return matrices.pointers()[k];
        else
            return base + k * Step::object;
    }

    const Matrices<T>& matrices;
    T* base;
};

// The same element by element, for code that holds an object in registers.
template <class T, int rows, Placement placement, int columns = rows>
class Elements {
    using Step = Steps<rows, columns, placement>;

public:
    explicit Elements(const Matrices<T>& array) : Elements(array, array.base()) {}
    Elements(const Matrices<T>& array, T* first) : base(first), objects(array.pointers()) {
        if constexpr (hasPositions)
            std::copy_n(array.pointers(), rows * columns, positions.begin());
    }

    T& operator()(std::ptrdiff_t k, int i, int j) const {
        if constexpr (placement == Placement::adjacent)
            return positions[i * columns + j][k];
        else if constexpr (placement == Placement::scattered)
            return positions[i * columns + j][k * Step::object];
        else if constexpr (placement == Placement::list)
            return objects[k][i * Step::row + j];
        else
            return base[k * Step::object + i * Step::row + j];
    }

private:
    static constexpr bool hasPositions =
        placement == Placement::adjacent || placement == Placement::scattered;

    T* base;
    T* const* objects;
    std::array<T*, hasPositions ? rows * columns : 0> positions;
};

} // namespace bench
