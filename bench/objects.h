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

// The n x n matrices of an array. Those whose elements have a pointer each are copied, and what was
// written is copied back.
template <class T, int n, Placement placement>
class Objects {
public:
    static constexpr bool areCopied =
        placement == Placement::adjacent || placement == Placement::scattered;
    // From row to row, in elements.
    static constexpr int rowStep = areCopied ? n : n + gapOf(placement);

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
            for (int p = 0; p < n * n; ++p)
                elements[p] = matrices.pointers()[p][k * matrices.step()];
        }
        operator const T*() const { return elements.data(); }

    private:
        std::array<T, n * n> elements;
    };

    class CopyBack {
    public:
        CopyBack(const Matrices<T>& array, std::ptrdiff_t index) : matrices(array), k(index) {}
        CopyBack(const CopyBack&) = delete;
        CopyBack& operator=(const CopyBack&) = delete;
        ~CopyBack() {
            for (int p = 0; p < n * n; ++p)
                matrices.pointers()[p][k * matrices.step()] = elements[p];
        }
        operator T*() { return elements.data(); }

    private:
        const Matrices<T>& matrices;
        std::ptrdiff_t k;
        std::array<T, n * n> elements;
    };

    T* address(std::ptrdiff_t k) const {
        if constexpr (placement == Placement::list)
            return matrices.pointers()[k];
        else
            return base + k * rowStep * (n + gapOf(placement));
    }

    const Matrices<T>& matrices;
    T* base;
};

} // namespace bench
