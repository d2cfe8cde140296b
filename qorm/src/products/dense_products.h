// Products of small square matrices without gaps: registers run along the elements of the result,
// through rows and on through the objects of a block. Each term of the sums is two permutations of
// what lies in memory. That needs permutations of any lanes of two registers, as AVX-512 has them.
#pragma once

#include "frame/gathering.h"
#include "frame/runs.h"
#include "products/shape.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qorm::products {

// Larger ones are done faster row by row.
template <class T, int n>
inline constexpr bool fitsRegister = hasGathering&& n* n <= laneCount<Pack<T>>;

// How many packed objects make a block, so that its elements nearly fill its registers.
template <class T, int n>
constexpr int densestBlock() {
    return n == 3 ? 7 : laneCount<Pack<T>> / (n * n);
}

// The product of a block. Kinds tell how the operands are stored, and whether they are single.
template <class T, int n, int objects, Kind kind1, Kind kind2>
class DenseBlock {
    using V = Pack<T>;
    static constexpr int lanes = laneCount<V>;
    static constexpr int elements = objects * n * n;
    static constexpr int registers = (elements + lanes - 1) / lanes;
    static constexpr int liveInLast = elements - (registers - 1) * lanes;

public:
    // All terms of an operand, for one that serves every block.
    template <bool second>
    struct Terms {
        V terms[registers][n];

        explicit Terms(const T* operand) {
            forEachConstant(upTo<registers>, [&](auto which) {
                forEachConstant(upTo<n>,
                                [&](auto k) { terms[which][k] = term<second, which, k>(operand); });
            });
        }
        const V& operator()(int which, int k) const { return terms[which][k]; }
    };

    // dst from the terms of both operands. All is read before the first element is written.
    template <class A, class B>
    [[gnu::always_inline]] static void multiply(const A& a, const B& b, T* dst) {
        V sums[registers];
        forEachConstant(upTo<registers>, [&](auto which) {
            forEachConstant(upTo<n>, [&](auto k) {
                const V product = a(which, k) * b(which, k);
                if constexpr (k > 0)
                    sums[which] = sums[which] + product;
                else if constexpr (beginsWithProduct(n))
                    sums[which] = product;
                else
                    sums[which] = V(T(0)) + product;
            });
        });
        for (int which = 0; which < registers - 1; ++which) {
            storeRun(dst + which * lanes, sums[which]);
        }
        storeRun<liveInLast>(dst + (registers - 1) * lanes, sums[registers - 1]);
    }

    // The elements of an operand in term k of the sums in one register.
    template <bool second, int which, int k>
    [[gnu::always_inline]] static V term(const T* operand) {
        constexpr int all = isArray(second ? kind2 : kind1) ? elements : n * n;
        return gatherElements<T, elementsOfTerm<second>(which, k), all>(operand);
    }

private:
    template <bool second>
    static constexpr std::array<int, lanes> elementsOfTerm(int which, int k) {
        constexpr Kind kind = second ? kind2 : kind1;
        std::array<int, lanes> wanted{};
        for (int lane = 0; lane < lanes; ++lane) {
            const int element = std::min(which * lanes + lane, elements - 1);
            const int i = second ? k : element / n % n;
            const int j = second ? element % n : k;
            wanted[static_cast<std::size_t>(lane)] =
                (isArray(kind) ? element / (n * n) * n * n : 0) +
                (isTransposed(kind) ? j * n + i : i * n + j);
        }
        return wanted;
    }
};

// The terms of an operand in a given block: a single operand's are permuted once.
template <class Block, bool second, bool array, class At>
auto termsOf(At at) {
    if constexpr (array) {
        return [at](std::ptrdiff_t block) {
            return [from = at(block)](auto which, auto k) __attribute__((always_inline)) {
                return Block::template term<second, which, k>(from);
            };
        };
    } else {
        return [terms =
                    typename Block::template Terms<second>(at(0))](std::ptrdiff_t) -> const auto& {
            return terms;
        };
    }
}

// Blocks that begin at at1(block), at2(block) and atDst(block), which come by value as operands do.
template <int n, int objects, Kind kind1, Kind kind2, class At1, class At2, class AtDst>
void multiplyDenseBlocks(At1 at1, At2 at2, AtDst atDst, std::ptrdiff_t blocks) {
    using T = std::remove_pointer_t<decltype(atDst(0))>;
    using Block = DenseBlock<T, n, objects, kind1, kind2>;
    const auto a = termsOf<Block, false, isArray(kind1)>(at1);
    const auto b = termsOf<Block, true, isArray(kind2)>(at2);
    for (std::ptrdiff_t block = 0; block < blocks; ++block) {
        Block::multiply(a(block), b(block), atDst(block));
    }
}

} // namespace qorm::products
