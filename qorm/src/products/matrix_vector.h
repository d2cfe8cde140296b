// Products of matrices, as stored or transposed, and column vectors: y(i) = Σₖ A(i,k)·x(k).
//
// Sums run over ascending k. Squares of 3 to 6 begin with the first product, read all of the vector
// before they write, and write each sum once; other shapes begin with +0, which they write first. One
// member sums otherwise: 32f, one matrix with an array of vectors, contiguous by strides.
#pragma once

#include "frame/entry.h"
#include "frame/known_sizes.h"
#include "frame/light_blocks.h"
#include "products/columns.h"
#include "products/product_in_order.h"

// name, the kinds of the matrix, the vector and the destination, type, layout
#define QORM_MATRIX_VECTOR(name, matrix, vector, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, \
        (qorm::products::formOfMatrixVector(qorm::Kind::matrix, qorm::Kind::vector, \
                                            qorm::Layout::layout)), \
        (qorm::products::multiplyVectors<qorm::Kind::matrix, qorm::Kind::vector>), \
        QORM_MATRIX_VECTOR_ARGUMENTS, QORM_TYPE_##type, matrix, vector, result)

#define QORM_MATRIX_VECTOR_ARGUMENTS(PART, access, T, matrix, vector, result) \
    PART##_##matrix##_##access(const T, Src1, src1), PART##_width_height_1, \
        PART##_##vector##_##access(const T, Src2, src2), PART##_len(src2), \
        PART##_##result##_##access(T, Dst, dst) PART##_count_##result

namespace qorm::products {

using MatrixVectorMeasure = std::uint32_t(std::uint32_t width, std::uint32_t height,
                                          std::uint32_t len, std::uint32_t count);

// What a call reads and writes, in elements. A transposed matrix has width and height exchanged.
template <bool transposed>
std::uint32_t measureWithOneVector(std::uint32_t w, std::uint32_t h, std::uint32_t /*len*/,
                                   std::uint32_t c) {
    return transposed ? w * (h + 1) * c + h : h * (w + 1) * c + w;
}
inline std::uint32_t measureWithOneMatrix(std::uint32_t w, std::uint32_t h, std::uint32_t /*len*/,
                                          std::uint32_t c) {
    return w * h + (w + h) * c;
}
inline std::uint32_t measureOfArrays(std::uint32_t w, std::uint32_t h, std::uint32_t /*len*/,
                                     std::uint32_t c) {
    return (w * (h + 1) + h) * c;
}

template <bool transposed>
bool vectorFits(std::uint32_t w, std::uint32_t h, std::uint32_t len, std::uint32_t /*count*/) {
    return (transposed ? h : w) == len;
}

constexpr Form<MatrixVectorMeasure> formOfMatrixVector(Kind matrix, Kind vector, Layout layout) {
    const bool transposed = isTransposed(matrix);
    const std::int32_t general = layout == Layout::P ? 9217 : 18433;
    return {.checks = {Check::null, Check::count, Check::size, Check::match, Check::stride,
                       Check::shift},
            .measure = !isArray(vector)
                           ? (transposed ? measureWithOneVector<true> : measureWithOneVector<false>)
                       : isArray(matrix) ? measureOfArrays
                                         : measureWithOneMatrix,
            .contiguousThreshold = layout == Layout::S ? 36865 : general,
            .generalThreshold = general,
            .sizesMatch = transposed ? vectorFits<true> : vectorFits<false>};
}

// One object, exactly as the contract tells where operands overlap. With an addend all sums are held,
// and written together.
template <Sums order, class S, class N>
void multiplyOneKnown(const S& s, std::ptrdiff_t object, N n) {
    using T = typename S::T;
    const auto a = s.matrixOf(object);
    const auto y = vectorOf(s.dst, object, n);
    LoadedVector<T, N> x;
    x.load(s.x, object, 1, n);
    T sums[n];
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        sums[i] = sumInLanes<order, T>([&](std::ptrdiff_t k) { return T(a(i, k)) * x(k); }, n);
        if constexpr (isAdded<decltype(s.addend)>)
            sums[i] = sums[i] + T(vectorOf(s.addend, object, n)(i));
        else
            y(i) = sums[i];
    }
    if constexpr (isAdded<decltype(s.addend)>) {
        for (std::ptrdiff_t i = 0; i < n; ++i) y(i) = sums[i];
    }
}

template <class S>
void multiplyOne(const S& s, std::ptrdiff_t object) {
    using T = typename S::T;
    const auto a = s.matrixOf(object);
    const auto x = vectorOf(s.x, object, s.terms());
    const auto y = vectorOf(s.dst, object, s.rows());
    for (std::ptrdiff_t i = 0; i < s.rows(); ++i) {
        T sum(0);
        y(i) = sum;
        for (std::ptrdiff_t k = 0; k < s.terms(); ++k) {
            sum = sum + T(a(i, k)) * T(x(k));
            y(i) = sum;
        }
        if constexpr (isAdded<decltype(s.addend)>)
            y(i) = sum + T(vectorOf(s.addend, object, s.rows())(i));
    }
}

// The same where operands are apart: with a row in each lane.
template <class S>
void multiplyOneApart(const S& s, std::ptrdiff_t object) {
    using T = typename S::T;
    using V = Pack<T>;
    constexpr int lanes = laneCount<V>;
    const auto a = s.matrix.object(object, s.stored.columns);
    const auto x = vectorOf(s.x, object, s.terms());
    const auto y = vectorOf(s.dst, object, s.rows());
    for (std::ptrdiff_t i = 0; i < s.rows(); i += lanes) {
        const int live = static_cast<int>(std::min<std::ptrdiff_t>(lanes, s.rows() - i));
        V sum(T(0));
        if constexpr (isTransposed(S::kind)) {
            for (std::ptrdiff_t k = 0; k < s.terms(); ++k) {
                const T* const row = a(k, i).address();
                sum = sum + (live == lanes ? loadRun(row) : loadRun(row, live)) * V(T(x(k)));
            }
        } else {
            for (std::ptrdiff_t k = 0; k < s.terms(); k += lanes) {
                const int columns =
                    static_cast<int>(std::min<std::ptrdiff_t>(lanes, s.terms() - k));
                V column[lanes];
                loadRuns<T>([&](int lane) { return a(i + std::min(lane, live - 1), k).address(); },
                            columns, [&](std::ptrdiff_t j) -> auto& { return column[j].lanes[0]; });
                for (int j = 0; j < columns; ++j) sum = sum + column[j] * V(T(x(k + j)));
            }
        }
        for (int lane = 0; lane < live; ++lane) {
            T result = laneOf(sum, lane);
            if constexpr (isAdded<decltype(s.addend)>)
                result = result + T(vectorOf(s.addend, object, s.rows())(i + lane));
            y(i + lane) = result;
        }
    }
}

// Objects that are too large for lanes, and single ones.
template <class S>
void multiplyLarge(const S& s, std::ptrdiff_t first, std::ptrdiff_t count) {
    using Matrix = decltype(s.matrix);
    constexpr std::ptrdiff_t leastRows = 4;
    if constexpr (Matrix::hasContiguousRows) {
        const auto isApart = [&](const auto& operand, Extent extent) {
            return [reads = spansOf(operand, extent.rows, extent.columns),
                    writes = spansOf(s.dst, 1, s.rows())](std::ptrdiff_t n) {
                return !overlap(reads(n), writes(n));
            };
        };
        const auto matrixIsApart = isApart(s.matrix, s.stored);
        const auto vectorIsApart = isApart(s.x, {1, s.terms()});
        const auto addendIsApart = [&] {
            if constexpr (isAdded<decltype(s.addend)>)
                return isApart(s.addend, {1, s.rows()});
            else
                return [](std::ptrdiff_t) { return true; };
        }();
        for (std::ptrdiff_t n = first; n < first + count; ++n) {
            if (s.rows() >= leastRows && matrixIsApart(n) && vectorIsApart(n) && addendIsApart(n))
                multiplyOneApart(s, n);
            else
                multiplyOne(s, n);
        }
    } else {
        for (std::ptrdiff_t n = first; n < first + count; ++n) multiplyOne(s, n);
    }
}

// One object of contiguous rows, each summed in blocks: all of them from its begin where operands are
// aligned.
template <class S>
void multiplyOneInBlocks(const S& s, std::ptrdiff_t object, bool aligned) {
    using T = typename S::T;
    const auto a = s.matrixOf(object);
    const T* const x = vectorOf(s.x, object, s.terms())(0).address();
    const auto y = vectorOf(s.dst, object, s.rows());
    for (std::ptrdiff_t i = 0; i < s.rows(); ++i) {
        const T* const row = a(i, 0).address();
        y(i) = 0;
        y(i) = aligned ? sumOfBlocks(row, x, s.terms(), 0) : sumOfProducts(row, x, s.terms());
    }
}

// Objects first .. first + live - 1, an object in each lane. `single` is the matrix of all of them, if
// there is but one.
template <Sums sums, class V, class S, class Single, class Rows, class Terms>
[[gnu::always_inline]] inline void multiplyLanes(const S& s, const Single& single,
                                                 std::ptrdiff_t first, int live, Rows rows,
                                                 Terms terms) {
    using T = typename S::T;
    const auto width = [&] {
        if constexpr (isTransposed(S::kind))
            return rows;
        else
            return terms;
    }();
    using X = std::conditional_t<decltype(s.x)::holdsArray, V, T>;
    Loaded<V, decltype(width)> matrices(width);
    if constexpr (S::hasMatrices) {
        const auto height = [&] {
            if constexpr (isTransposed(S::kind))
                return terms;
            else
                return rows;
        }();
        loadLanes(s.matrix, first, live, height, width, matrices.matrix());
    }
    const auto x = loadVectors<X>(s.x, first, live, terms);
    const auto element = [&](std::ptrdiff_t i, std::ptrdiff_t k) __attribute__((always_inline)) {
        if constexpr (S::hasMatrices)
            return V(asRead<S::kind>(matrices.matrix())(i, k));
        else
            return V(T(single(i, k)));
    };
    V results[largestSize<Rows>];
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        results[i] = sumInLanes<sums, V>(
            [&](std::ptrdiff_t k)
                __attribute__((always_inline)) { return element(i, k) * V(x(k)); },
            terms);
    }
    if constexpr (isAdded<decltype(s.addend)>) {
        const auto addends = loadVectors<V>(s.addend, first, live, rows);
        for (std::ptrdiff_t i = 0; i < rows; ++i) results[i] = results[i] + addends(i);
    }
    storeLanes(s.dst, first, live, Fixed<1>(), rows, PackMatrix<V, Rows>{results, rows});
}

template <Sums sums, class V, class S, class Rows, class Terms>
QORM_KERNEL void multiplyBlocks(const S s, std::ptrdiff_t first, int live, std::ptrdiff_t blocks,
                                Rows rows, Terms terms) {
    constexpr bool isOneByOne = laneCount<V> == 1;
    // Lanes are apart from a single matrix, which is read once if its size is known.
    const auto single = [&] {
        if constexpr (!S::hasMatrices && !isOneByOne && isFixed<Rows> && isFixed<Terms>)
            return Held<typename S::T, rows>(s.matrixOf(0), rows);
        else
            return s.matrixOf(0);
    }();
    const auto multiply = [&](std::ptrdiff_t object, int liveLanes) __attribute__((always_inline)) {
        if constexpr (!isOneByOne)
            multiplyLanes<sums, V>(s, single, object, liveLanes, rows, terms);
        else if constexpr (sums == Sums::blocks)
            multiplyOneInBlocks(s, object, true);
        else if constexpr (hasOwnPath<Rows>)
            multiplyOneKnown<sums>(s, object, rows);
        else
            multiplyOne(s, object);
    };
    // A constant number of live lanes gains something where only vectors are loaded.
    if constexpr (S::hasMatrices || isOneByOne) {
        for (std::ptrdiff_t block = 0; block < blocks; ++block)
            multiply(first + block * laneCount<V>, live);
    } else {
        forEachBlock<V>(first, live, blocks, multiply);
    }
}

template <class S>
auto guardOf(const S& s, std::ptrdiff_t count) {
    constexpr int lanes = laneCount<Pack<typename S::T>>;
    const bool known = s.rows() == s.terms() && isUnrolled(s.rows());
    const Sharing sharing = known ? Sharing::any : Sharing::none;
    const Extent result = {1, s.rows()};
    const auto guard = [&](Sharing shared, const auto& operand, Extent extent) {
        return readAheadOf(shared, operand, extent, s.dst, result, count, lanes);
    };
    const auto matrix = guard(Sharing::none, s.matrix, s.stored);
    const auto x = guard(sharing, s.x, {1, s.terms()});
    if constexpr (isAdded<decltype(s.addend)>)
        return AllOf(matrix, x, guard(sharing, s.addend, result));
    else
        return AllOf(matrix, x);
}

// Whether no object of the destination lies over any of a source.
template <class S>
bool areSourcesApart(const S& s, std::ptrdiff_t count) {
    constexpr int lanes = laneCount<Pack<typename S::T>>;
    const Spans writes = spansOf(s.dst, 1, s.rows());
    return withReads(s, [&](const auto&... reads) {
        return (areApart(reads, writes, count) && ...) &&
               hasDistinctElements(s.dst, 1, s.rows(), lanes);
    });
}

template <class S>
int costOfLanes(const S& s) {
    const int ofAddend = [&] {
        if constexpr (isAdded<decltype(s.addend)>)
            return qorm::costOfLanes(s.addend, 1, s.rows());
        else
            return 0;
    }();
    return qorm::costOfLanes(s.matrix, s.stored.rows, s.stored.columns) +
           qorm::costOfLanes(s.x, 1, s.terms()) + ofAddend + qorm::costOfLanes(s.dst, 1, s.rows());
}

// By columns where they fit registers, one object after the other or several at a time. False if there
// is no such path.
template <Sums sums, class S>
bool multiplyInColumns(const S& s, std::ptrdiff_t count) {
    using T = typename S::T;
    bool isDone = false;
    const auto multiply = [&](auto n) {
        if constexpr (hasSums<sums, decltype(n)> && hasRunsOfVectors<S, decltype(n)>) {
            if (areRunsOfVectors(s, count, n)) {
                multiplyRunsOfVectors<sums>(s, count, n);
                isDone = true;
                return;
            }
        }
        if constexpr (hasSums<sums, decltype(n)> && hasColumns<S, decltype(n)>) {
            if (mayGoInLanes<S, decltype(n)> && costOfLanes(s) == 0) return;
            forEachStretch(s, count, n, [&](std::ptrdiff_t begin, std::ptrdiff_t end, bool apart) {
                if (apart)
                    multiplyByColumns<sums>(s, begin, end, n);
                else
                    multiplyBlocks<sums, T>(s, begin, 1, end - begin, n, n);
            });
            isDone = true;
        }
    };
    if (s.rows() == s.terms()) {
        if (s.rows() == 8)
            multiply(Fixed<8>());
        else
            withStaticSize(s.rows(), multiply);
    }
    return isDone;
}

template <Sums sums = Sums::chain, class S>
qorStatus multiplySystems(const S& s, std::ptrdiff_t count) {
    using T = typename S::T;
    using D = decltype(s.dst);
    if constexpr (D::holdsArray) {
        if (std::max(s.rows(), s.terms()) <= mostLaneSize) {
            const auto run = [&](const auto& inBlocks) {
                return withKnownSquare<D>(s.terms(), s.rows(), [&](auto terms, auto rows) {
                    if constexpr (hasSums<sums, decltype(rows)> && mayGoInLanes<S, decltype(rows)>)
                        return inBlocks(
                            [&]<class V>(std::ptrdiff_t first, int live, std::ptrdiff_t blocks) {
                                multiplyBlocks<sums, V>(s, first, live, blocks, rows, terms);
                            });
                    else
                        return qorStatus{qorStatusOk};
                });
            };
            const bool known = s.rows() == s.terms() && isUnrolled(s.rows());
            if (multiplyInColumns<sums>(s, count)) return qorStatusOk;
            if (known && costOfLanes(s) >= leastForScalars)
                return run([&](const auto& work) { return inScalars<T>(count, work); });
            const auto guard = guardOf(s, count);
            const bool apart = areSourcesApart(s, count);
            return run(
                [&](const auto& work) { return inManyLanes<Pack<T>>(apart, guard, count, work); });
        }
    } else {
        if (s.rows() == s.terms() && isUnrolled(s.rows())) {
            return withStaticSize(s.rows(), [&](auto n) {
                if constexpr (isFixed<decltype(n)>) multiplyOneKnown<sums>(s, 0, n);
                return qorStatus{qorStatusOk};
            });
        }
    }
    multiplyLarge(s, 0, count);
    return qorStatusOk;
}

inline bool areMultiplesOf16(std::initializer_list<std::uintptr_t> numbers) {
    return std::all_of(numbers.begin(), numbers.end(),
                       [](std::uintptr_t number) { return number % 16 == 0; });
}

// The sums of one matrix, 32f, with an array of vectors, both contiguous by strides, which depend on
// addresses and length.
template <class S>
qorStatus multiplyByAlignment(const S& s, std::ptrdiff_t count) {
    const auto address = [](const float* p) { return reinterpret_cast<std::uintptr_t>(p); };
    const auto stride = [](std::int32_t bytes) { return static_cast<std::uintptr_t>(bytes); };
    const bool aligned =
        areMultiplesOf16({address(s.matrix.base), stride(s.matrix.stride1), address(s.x.base),
                          stride(s.x.stride0), address(s.dst.base), stride(s.dst.stride0)});
    const std::ptrdiff_t terms = s.terms();
    if (s.rows() == terms && isUnrolled(terms)) {
        return aligned && terms > 3 ? multiplySystems<Sums::pairs>(s, count)
                                    : multiplySystems(s, count);
    }
    if (terms < (aligned ? termsOfBlock : leastForBlocks<float>)) return multiplySystems(s, count);
    if (aligned && std::max(s.rows(), terms) <= mostLaneSize) {
        return multiplySystems<Sums::blocks>(s, count);
    }
    for (std::ptrdiff_t n = 0; n < count; ++n) multiplyOneInBlocks(s, n, aligned);
    return qorStatusOk;
}

template <Kind matrixKind, Kind vectorKind, class Matrix, class X, class D>
qorStatus multiplyVectors(const Matrix& matrix, Size width, Size height, const X& x, Size /*len*/,
                          const D& dst, Count countOf = Count(1)) {
    using T = typename D::Element;
    const Extent stored = {height.value, width.value};
    const std::ptrdiff_t count = countOf.value;
    const auto multiply = [&](const X& vectors) {
        const Systems<matrixKind, Matrix, X, Nothing, D> systems = {
            matrix, stored, vectors, {}, dst};
        constexpr bool contiguous =
            Matrix::hasContiguousRows && X::hasContiguousRows && D::hasContiguousRows;
        if constexpr (matrixKind == Kind::m && vectorKind == Kind::va && sizeof(T) == 4 &&
                      D::layout == Layout::S && contiguous) {
            return multiplyByAlignment(systems, count);
        } else {
            return multiplySystems(systems, count);
        }
    };
    // By strides, squares of 3 to 6 read a single vector once for all objects.
    if constexpr (D::layout == Layout::S && D::holdsArray && !X::holdsArray) {
        if (stored.rows == stored.columns && isUnrolled(stored.rows)) {
            const HeldVector held(x, stored.rows);
            return multiply(held.operand());
        }
    }
    return multiply(x);
}

} // namespace qorm::products
