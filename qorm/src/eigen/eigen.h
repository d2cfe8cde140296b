// Eigenvalues of symmetric matrices, alone or with eigenvectors: the forms of both families and
// their cores.
#pragma once

#include "eigen/closed_forms.h"
#include "eigen/symmetric_ql.h"
#include "frame/entry.h"
#include "frame/lane_blocks.h"
#include "frame/overlap.h"
#include "frame/static_size.h"

// name, the source's kind, type, layout
#define QORM_EIGEN_VALUES(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::eigen::formOfValues(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        QORM_ON_OBJECTS(qorm::eigen::values<qorm::eigen::variantOfValues( \
                            qorm::Kind::kind, sizeof(QORM_TYPE_##type), qorm::Layout::layout)>), \
        QORM_EIGEN_VALUES_ARGUMENTS, QORM_TYPE_##type, kind)

#define QORM_EIGEN_VALUES_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_buffer(T), PART##_values(T), \
        PART##_widthHeight_##kind

#define QORM_EIGEN_VECTORS(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::eigen::formOfVectors(qorm::Kind::kind, sizeof(QORM_TYPE_##type)), \
        QORM_ON_OBJECTS(qorm::eigen::vectors<qorm::eigen::variantOfVectors( \
                            qorm::Kind::kind, sizeof(QORM_TYPE_##type), qorm::Layout::layout)>), \
        QORM_EIGEN_VECTORS_ARGUMENTS, QORM_TYPE_##type, kind)

#define QORM_EIGEN_VECTORS_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_buffer(T), \
        PART##_##kind##_##access(T, DstVectors, dst), PART##_values(T), PART##_widthHeight_##kind

namespace qorm::eigen {

using Measure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline constexpr CheckOrder checkOrder = {Check::null, Check::size, Check::count, Check::shift,
                                          Check::stride};

inline std::uint32_t measureOfValues(std::uint32_t n, std::uint32_t c) {
    return n * (n + 1) * c;
}
inline std::uint32_t measureOfVectors(std::uint32_t n, std::uint32_t c) {
    return n * (2 * n + 1) * c;
}

constexpr Form<Measure> formOfValues(std::size_t elementSize, Layout layout) {
    const bool staysLonger = elementSize == 4 && layout == Layout::L;
    return {.checks = checkOrder,
            .measure = measureOfValues,
            .contiguousThreshold = staysLonger ? 40001 : 20001,
            .generalThreshold = 20001};
}

constexpr Form<Measure> formOfVectors(Kind kind, std::size_t elementSize) {
    return {.checks = checkOrder,
            .measure = measureOfVectors,
            .contiguousThreshold = 1701,
            .generalThreshold = 1701,
            .alwaysGeneral = kind == Kind::m && elementSize == 4};
}

// Array forms have exits from the reduction that single forms don't have.
constexpr Variant variantOfValues(Kind kind, std::size_t elementSize, Layout layout) {
    const bool isArrayOf64fP = elementSize == 8 && layout == Layout::P;
    return {.vectors = false,
            .skipsSmallColumns = isArray(kind) && !isArrayOf64fP,
            .skipsReducedColumns = isArray(kind),
            .topShiftFromZero = false,
            .sortsFirst = false};
}

constexpr Variant variantOfVectors(Kind kind, std::size_t elementSize, Layout layout) {
    const bool isM32f = kind == Kind::m && elementSize == 4 && layout != Layout::P;
    return {.vectors = true,
            .skipsSmallColumns = false,
            .skipsReducedColumns = true,
            .topShiftFromZero = isM32f,
            .sortsFirst = kind == Kind::m && !isM32f};
}

// Two registers: the sweeps wait for their roots and divisions, and two chains of them overlap.
template <class T>
using LanesOf = Pack<T, 2>;

// One object, exactly as the contract tells, down to the state that a failure leaves.
template <Variant variant, class T, class Src, class Vectors>
[[gnu::noinline]] qorStatus solveObject(const Src src, T* buffer, Run<T> values,
                                        const Vectors vectors, std::ptrdiff_t n) {
    if (n == 1) return solveSize1(src, values, vectors);
    using Work = StridedMatrix<T, true>;
    const Work work = {buffer, n * std::ptrdiff_t{sizeof(T)}, sizeof(T)};
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < n; ++j) work(i, j) = src(i, j);
    }
    if (n == 2) return solveSize2<T>(work, values, vectors);
    SymmetricQl<variant, T, std::ptrdiff_t, Work, Run<T>, Vectors> ql(n, work, values, vectors);
    const Outcome<T> outcome = ql.solve();
    if (outcome.unsettled) return qorStatusNoConvergence;
    return outcome.singular ? qorStatusSingular : qorStatusOk;
}

// Objects first .. first + live - 1 in lanes. Nothing is written if one of them fails.
template <Variant variant, class V, class T, class N, class Src, class Vectors>
[[gnu::noinline]] qorStatus solveLanes(const Src& src, const Vectors& dstVectors,
                                       const Plain<T>& dstValues, std::ptrdiff_t first, int live,
                                       N n) {
    constexpr std::ptrdiff_t capacity = largestSize<N>;
    V workBlock[capacity * capacity];
    V valueBlock[capacity];
    [[maybe_unused]] V vectorBlock[variant.vectors ? capacity * capacity : 1];
    const PackMatrix<V> work = {workBlock, n};
    const PackRun<V> values = {valueBlock};
    const auto vectors = [&] {
        if constexpr (variant.vectors)
            return PackMatrix<V>{vectorBlock, n};
        else
            return NoVectors();
    }();

    loadLanes(src, first, live, n, n, work);
    SymmetricQl<variant, V, N, PackMatrix<V>, PackRun<V>, decltype(vectors)> ql(n, work, values,
                                                                                vectors);
    const Outcome<V> outcome = ql.solve();
    if (any(outcome.singular | outcome.unsettled)) return qorStatusSingular;
    if constexpr (variant.vectors) storeLanes(dstVectors, first, live, n, n, vectors);
    storeLanes(dstValues, first, live, n, values);
    return qorStatusOk;
}

inline Spans spansOf(NoVectors, std::ptrdiff_t, std::ptrdiff_t) {
    return {{0, 0}, 0};
}

// Lanes read objects before they write the first of them; this tells where that shows.
class LaneGuard {
public:
    template <class T, class Src, class Vectors>
    LaneGuard(const Src& src, const Scratch<T>& scratch, const Vectors& vectors,
              const Plain<T>& values, std::ptrdiff_t n)
        : reads(spansOf(src, n, n)),
          vectorWrites(spansOf(vectors, n, n)),
          valueWrites(spansOf(values)),
          scratchBytes(bytesOf(scratch.base, n * n * std::ptrdiff_t{sizeof(T)})) {
        if constexpr (!std::is_same_v<Vectors, NoVectors>) {
            constexpr int lanes = laneCount<LanesOf<T>>;
            distinct = hasDistinctElements(vectors, n, n, lanes);
            inPlace = overlap(spanOfAll(reads, 0, 1), spanOfAll(vectorWrites, 0, 1)) &&
                      shareOnlyPositions(src, vectors, n, n, lanes);
        }
    }

    [[gnu::noinline]] bool allows(std::ptrdiff_t first, int live) const {
        const Bytes read = spanOfAll(reads, first, live);
        const Bytes vectors = spanOfAll(vectorWrites, first, live);
        const Bytes values = spanOfAll(valueWrites, first, live);
        return distinct && (inPlace || mayReadAhead(reads, vectorWrites, first, live)) &&
               mayReadAhead(reads, valueWrites, first, live) && !overlap(values, vectors) &&
               !overlap(scratchBytes, read) && !overlap(scratchBytes, vectors) &&
               !overlap(scratchBytes, values);
    }

private:
    Spans reads;
    Spans vectorWrites;
    Spans valueWrites;
    Bytes scratchBytes;
    bool distinct = true; // elements of the vectors
    bool inPlace = false; // vectors on their own source
};

template <class Vectors>
auto objectOf(const Vectors& vectors, std::ptrdiff_t n, std::ptrdiff_t columns) {
    if constexpr (std::is_same_v<Vectors, NoVectors>)
        return vectors;
    else
        return vectors.object(n, columns);
}

template <Variant variant, class T, class Src, class Vectors>
qorStatus solveArray(const Src& src, const Scratch<T>& scratch, const Vectors& dstVectors,
                     const Plain<T>& dstValues, std::ptrdiff_t n, std::ptrdiff_t count) {
    const auto solveOne = [&](std::ptrdiff_t k) {
        return solveObject<variant>(src.object(k, n), scratch.base, dstValues.object(k),
                                    objectOf(dstVectors, k, n), n);
    };
    if (count == 1 || !isLaneSize(n)) {
        for (std::ptrdiff_t k = 0; k < count; ++k) {
            if (const qorStatus status = solveOne(k)) return status;
        }
        return qorStatusOk;
    }
    const LaneGuard guard(src, scratch, dstVectors, dstValues, n);
    return withStaticSize(n, [&](auto size) {
        return inLanes<LanesOf<T>>(guard, count, [&]<class V>(std::ptrdiff_t first, int live) {
            if constexpr (laneCount<V> == 1)
                return solveOne(first);
            else
                return solveLanes<variant, V>(src, dstVectors, dstValues, first, live, size);
        });
    });
}

template <Variant variant, class Src, class T>
qorStatus values(const Src& src, const Scratch<T>& scratch, const Plain<T>& dstValues, Size n) {
    return solveObject<variant>(src.object(0, n.value), scratch.base, dstValues.object(0),
                                NoVectors(), n.value);
}
template <Variant variant, class Src, class T>
qorStatus values(const Src& src, const Scratch<T>& scratch, const Plain<T>& dstValues, Size n,
                 Count count) {
    return solveArray<variant>(src, scratch, NoVectors(), dstValues, n.value, count.value);
}

template <Variant variant, class Src, class T, class Vectors>
qorStatus vectors(const Src& src, const Scratch<T>& scratch, const Vectors& dstVectors,
                  const Plain<T>& dstValues, Size n) {
    return solveObject<variant>(src.object(0, n.value), scratch.base, dstValues.object(0),
                                dstVectors.object(0, n.value), n.value);
}
template <Variant variant, class Src, class T, class Vectors>
qorStatus vectors(const Src& src, const Scratch<T>& scratch, const Vectors& dstVectors,
                  const Plain<T>& dstValues, Size n, Count count) {
    return solveArray<variant>(src, scratch, dstVectors, dstValues, n.value, count.value);
}

} // namespace qorm::eigen
