// Plain scalar model of copies, extracts, identities and transposes, and of trace and Frobenius
// norm: what memory holds after a call, one element after the other. Tests compare the library with
// it bit by bit.
#pragma once

#include "vectors_oracle.h"

#include <limits>
#include <numeric>

namespace movement_oracle {

using harness::Call;
using harness::Function;
using harness::Layout;
using harness::Operand;
using vectors_oracle::isUnrolled;

template <class T>
using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;

inline bool movesBits(const Function& function) {
    return harness::contains("Copy Extract Transpose", function.operation);
}

// The order of the moves shows where the destination lies on the source or on itself.
template <class T>
void expectMoves(const Call& call, const Function& function) {
    const Operand& source = call.operand("Src");
    const Operand& result = call.operand("Dst");
    const bool transposes = function.operation == "Transpose";
    const auto move = [&](int n, int i, int j) {
        const auto element =
            transposes ? source.expected<Bits<T>>(n, j, i) : source.expected<Bits<T>>(n, i, j);
        result.expect(n, i, j, element);
    };
    const bool ofPointers = function.layout == Layout::P;
    const bool isSmallSquare = result.rows == result.columns && isUnrolled(result.rows);
    if (function.operation == "Extract" && ofPointers) { // positions outermost
        result.forEachElementOf(0, [&](int, int i, int j) {
            for (int n = 0; n < result.objects; ++n) move(n, i, j);
        });
    } else if (transposes && ofPointers && !isSmallSquare) { // by rows of the source
        source.forEachElement([&](int n, int i, int j) { move(n, j, i); });
    } else {
        result.forEachElement(move);
    }
}

// A whole row of zeros precedes its 1.
template <class T>
void expectIdentities(const Operand& result) {
    for (int n = 0; n < result.objects; ++n) {
        for (int i = 0; i < result.rows; ++i) {
            for (int j = 0; j < result.columns; ++j) result.expect<T>(n, i, j, 0);
            if (i < result.columns) result.expect<T>(n, i, i, 1);
        }
    }
}

template <class T>
void expectTraces(const Call& call, const Function& function) {
    const Operand& source = call.operand("Src");
    const int size = source.rows;
    for (int n = 0; n < source.objects; ++n) {
        std::vector<T> d;
        for (int k = 0; k < size; ++k) d.push_back(source.expected<T>(n, k, k));
        const bool beginsWithTheFifth = function.layout != Layout::P && (size == 5 || size == 6);
        if (beginsWithTheFifth) std::rotate(d.begin(), d.begin() + 4, d.end());
        const T trace = vectors_oracle::plainSum(vectors_oracle::Terms<T>(d), isUnrolled(size));
        call.result().expect(n, 0, 0, trace);
    }
}

// How a member sums the squares of its matrices, and whether it gives 0 for a sum that is not at
// least the threshold.
struct NormRule {
    bool byPairs, isTested, inAnyOrder;

    NormRule(const Function& function, const Operand& source) {
        const int width = source.columns;
        const bool isSquare = width == source.rows;
        const bool isThree = isSquare && width == 3;
        const bool isPointer = function.layout == Layout::P;
        const bool isUnrolledRow = isThree || (width >= 4 && width <= 6);
        byPairs = isPointer && !(function.array && isThree);
        isTested = isPointer        ? byPairs
                   : function.array ? !isUnrolledRow
                                    : function.elementSize == sizeof(float);
        inAnyOrder = isTested && !isPointer && source.stride1 == source.stride2 * width &&
                     (function.array || !isSquare || width > 6);
    }
};

template <class T>
void expectNorms(const Call& call, const Function& function) {
    const Operand& source = call.operand("Src");
    const NormRule rule(function, source);
    for (int n = 0; n < source.objects; ++n) {
        std::vector<T> squares;
        source.forEachElementOf(n, [&](int, int i, int j) {
            const T x = source.expected<T>(n, i, j);
            squares.push_back(x * x);
        });
        for (std::size_t k = 1; rule.byPairs && k < squares.size(); k += 2) {
            squares[k - 1] += squares[k];
            squares[k] = 0;
        }
        const T sum = std::accumulate(squares.begin(), squares.end(), T(0));
        const bool isZero = rule.isTested && !(sum >= std::numeric_limits<T>::epsilon());
        call.result().expect<T>(n, 0, 0, isZero ? 0 : std::sqrt(sum));
    }
}

// Accepts a norm that another order of summation may give.
template <class T>
void allowAnyOrder(const Call& call) {
    const Operand& source = call.operand("Src");
    const T share =
        std::numeric_limits<T>::epsilon() * static_cast<T>(source.rows * source.columns);
    const Operand& norms = call.result();
    for (int n = 0; n < norms.objects; ++n) {
        const T got = norms.get<T>(n, 0, 0);
        const T want = norms.expected<T>(n, 0, 0);
        if (std::abs(got - want) <= share * want) norms.expect(n, 0, 0, got);
    }
}

// Does the work of a call in the image of its memory.
template <class T>
void expectResults(const Call& call, const Function& function) {
    if (movesBits(function))
        expectMoves<T>(call, function);
    else if (function.operation == "LoadIdentity")
        expectIdentities<T>(call.result());
    else if (function.operation == "Trace")
        expectTraces<T>(call, function);
    else
        expectNorms<T>(call, function);
}

} // namespace movement_oracle
