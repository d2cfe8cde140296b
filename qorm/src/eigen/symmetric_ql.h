// The symmetric eigenproblem from size 3 on: Householder reduction to tridiagonal form, then QL
// sweeps with implicit shift. One text serves one object (V is float or double) and as many objects
// as a pack has lanes.
//
// All lanes work on the same eigenvalue at the same time, so indices are common to all lanes; what
// a lane has for itself is where its sweep begins. Lanes that have nothing to do keep their values.
//
// The sweep that runs from the top is the one that runs from the bottom with all indices mirrored:
// objects of that direction are flipped before the sweeps and flipped back behind them.
//
// Thresholds are absolute and their comparisons written so that a NaN goes the way of the contract.
#pragma once

#include "frame/lanes.h"

#include <cstddef>

namespace qorm::eigen {

// What the members of the two families do differently.
struct Variant {
    bool vectors;             // V is accumulated
    bool skipsSmallColumns;   // no reflection unless the column's sum of squares exceeds eps
    bool skipsReducedColumns; // no reflection of a column that already is (norm, 0, ...)
    bool topShiftFromZero;    // from the top, the sign of the shift changes at 0 and not at eps
    bool sortsFirst;          // sorted before the singular test
};

template <class V>
struct Outcome {
    Mask<V> singular;
    Mask<V> unsettled;
};

// In place of vectors where there are none.
struct NoVectors {};

// Work is the matrix, overwritten; values and vectors are the results. All three are accessors of
// the caller's memory or of packs. N is the size or its constant.
template <Variant variant, class V, class N, class Work, class Values, class Vectors>
class SymmetricQl {
public:
    SymmetricQl(N size, Work work, Values dstValues, Vectors dstVectors)
        : n(size), w(work), values(dstValues), vectors(dstVectors) {}

    Outcome<V> solve() {
        loadIdentity();
        for (Index k = 1; k <= n - 2; ++k) reflect(k);

        flipped = abs(V(d(n - 1))) > abs(V(d(0)));
        flip();
        const Mask<V> unsettled = runSweeps();
        flip();
        if (any(unsettled)) return {none, unsettled};

        collect();
        if constexpr (variant.sortsFirst) sort();
        const Mask<V> singular = abs(product) <= eps;
        if constexpr (!variant.sortsFirst) {
            if (any(singular)) return {singular, none};
            sort();
        }
        return {singular, none};
    }

private:
    using Index = std::ptrdiff_t;
    using T = LaneType<V>;

    static constexpr int maxSweeps = 30;

    static V at(Index i) { return V(static_cast<T>(i)); }
    decltype(auto) d(Index i) const { return w(i, i); }
    decltype(auto) e(Index i) const { return w(i + 1, i); }

    void loadIdentity() {
        if constexpr (variant.vectors) {
            for (Index i = 0; i < n; ++i) {
                for (Index j = 0; j < n; ++j) vectors(i, j) = i == j ? one : zero;
            }
        }
    }

    // Reflects column k-1 below row k. The Householder vector lies in the values.
    void reflect(Index k) {
        V sigma = zero;
        for (Index i = k; i < n; ++i) {
            const V x = w(i, k - 1);
            sigma = sigma + x * x;
        }
        for (Index i = k + 1; i < n; ++i) values(i) = V(w(i, k - 1));
        const V a = w(k, k - 1);

        Mask<V> active = all;
        if constexpr (variant.skipsSmallColumns) {
            active = sigma > eps;
            assignWhere(!active, values(k), a);
        }
        const V norm = sqrt(sigma);
        if constexpr (variant.skipsReducedColumns) active = active & !(abs(norm - a) <= eps);
        if (!any(active)) return;

        const Mask<V> positive = a > eps;
        const Mask<V> vanishing = abs(a) <= eps;
        const V head = select(positive, a + norm, select(vanishing, norm, a - norm));
        const V beta = select(positive, (sigma + norm * a) * two,
                              select(vanishing, sigma + sigma, (sigma - norm * a) * two));
        assignWhere(active, values(k), head);
        active = active & (beta > eps);
        if (!any(active)) return;

        // Lanes that stand by reflect with a zero vector: x - (+0) is x for every x.
        const V c = select(active, two / beta, zero);
        for (Index i = k; i < n; ++i) assignWhere(!active, values(i), zero);

        for (Index j = k - 1; j < n; ++j) {
            V dot = zero;
            for (Index i = k; i < n; ++i) dot = dot + V(w(i, j)) * V(values(i));
            const V t = select(active, c * dot, zero);
            for (Index i = k; i < n; ++i) w(i, j) = V(w(i, j)) - V(values(i)) * t;
        }
        for (Index r = k - 1; r < n; ++r) reflectRow(w, r, k, c, active);

        if constexpr (variant.vectors) {
            if (k == 1) {
                loadReflector(c, active);
            } else {
                for (Index r = 1; r < n; ++r) reflectRow(vectors, r, k, c, active);
            }
        }
    }

    // Row r of the matrix times I - c v v^T.
    template <class Matrix>
    void reflectRow(Matrix matrix, Index r, Index k, V c, Mask<V> active) {
        V dot = zero;
        for (Index i = k; i < n; ++i) dot = dot + V(matrix(r, i)) * V(values(i));
        const V t = select(active, c * dot, zero);
        for (Index i = k; i < n; ++i) matrix(r, i) = V(matrix(r, i)) - V(values(i)) * t;
    }

    // The identity times the first reflector.
    void loadReflector(V c, Mask<V> active) {
        for (Index i = 1; i < n; ++i) {
            const V v = values(i);
            vectors(i, i) = one - c * v * v;
            for (Index j = i + 1; j < n; ++j) {
                const V x = select(active, v * -c * V(values(j)), zero);
                vectors(i, j) = x;
                vectors(j, i) = x;
            }
        }
    }

    void flip() {
        if (!any(flipped)) return;
        for (Index i = 0; 2 * i < n - 1; ++i) exchangeWhere(flipped, d(i), d(n - 1 - i));
        for (Index i = 0; 2 * i < n - 2; ++i) exchangeWhere(flipped, e(i), e(n - 2 - i));
        if constexpr (variant.vectors) {
            for (Index i = 0; 2 * i < n - 1; ++i) exchangeColumnsWhere(flipped, i, n - 1 - i);
        }
    }

    // Finds the eigenvalues from the last one upward. Returns the objects that one of them held up.
    Mask<V> runSweeps() {
        for (Index last = n - 1; last > 0; --last) {
            Mask<V> unsettled = all;
            for (int sweeps = 0;; ++sweeps) {
                split(last, unsettled);
                unsettled = unsettled & !(begin == at(last));
                if (!any(unsettled)) break;
                if (sweeps == maxSweeps) return unsettled;
                sweep(last, unsettled);
            }
        }
        if constexpr (!variant.vectors) {
            assignWhere(!flipped, values(0), V(d(0)));
            product = select(flipped, product, product * V(d(0)));
        }
        return none;
    }

    // Looks upward from `last` for the row at which each lane's block of nonzero off-diagonal
    // elements begins.
    void split(Index last, Mask<V> unsettled) {
        Mask<V> searching = unsettled;
        begin = zero;
        dBegin = d(0);
        for (Index m = last; m > 0 && any(searching); --m) {
            const V dm = d(m);
            const Mask<V> found = searching & !(abs(half * V(e(m - 1))) > eps);
            begin = select(found, at(m), begin);
            dBegin = select(found, dm, dBegin);
            if constexpr (!variant.vectors) {
                // Any split counts here, so the product may pick up an element more than once.
                const Mask<V> counted = found & !flipped;
                assignWhere(counted, values(m), dm);
                product = select(counted, product * dm, product);
            }
            searching = searching & !found;
        }
    }

    // One implicitly shifted sweep over the block that ends at `last`.
    void sweep(Index last, Mask<V> unsettled) {
        const V e0 = e(last - 1);
        const V t = (V(d(last - 1)) - V(d(last))) / (two * e0);
        const V q = rootOfOnePlus(t * t);
        Mask<V> plus = t > eps;
        if constexpr (variant.topShiftFromZero) plus = plus | (flipped & (t > zero));
        V g = (dBegin - V(d(last))) + e0 / select(plus, t + q, t - q);

        V s = one;
        V c = one;
        V p = zero;
        V turn = zero;
        Mask<V> sweeping = none;
        for (Index i = 0; i < last; ++i) {
            const Mask<V> begins = unsettled & (begin == at(i));
            sweeping = sweeping | begins;
            if (!any(sweeping)) continue;
            const V f = s * V(e(i));
            const V b = V(e(i)) * c;
            const V r = sqrt(f * f + g * g);
            if (i > 0) assignWhere(sweeping & !begins, e(i - 1), r);

            const Mask<V> stalled = sweeping & !(abs(r) > eps);
            if (any(stalled)) {
                stall(i, p, stalled);
                sweeping = sweeping & !stalled;
                if (!any(sweeping)) continue;
            }
            assignWhere(sweeping, s, f / r);
            assignWhere(sweeping, c, g / r);
            const V h = V(d(i)) - p;
            assignWhere(sweeping, turn, (V(d(i + 1)) - h) * s + (c + c) * b);
            assignWhere(sweeping, p, turn * s);
            assignWhere(sweeping, d(i), h + p);
            assignWhere(sweeping, g, turn * c - b);
            if constexpr (variant.vectors) rotate(i, s, c, sweeping);
        }

        // From the top, the first eigenvalue takes its shift even when the last turn vanished.
        Mask<V> shifts = abs(turn) > eps;
        if (last == n - 1) shifts = shifts | flipped;
        shifts = shifts & sweeping;
        assignWhere(shifts, e(last - 1), g);
        assignWhere(shifts, d(last), V(d(last)) - p);
    }

    // A rotation of vanishing length ends the sweep: it is the first off-diagonal element of the
    // block that is cleared, not the one at hand.
    void stall(Index i, V p, Mask<V> stalled) {
        assignWhere(stalled, d(i), V(d(i)) - p);
        for (Index m = 0; m <= i; ++m) {
            assignWhere(stalled & (begin == at(m)), e(m), zero);
        }
    }

    void rotate(Index i, V s, V c, Mask<V> sweeping) {
        for (Index r = 0; r < n; ++r) {
            const V x = vectors(r, i);
            const V y = vectors(r, i + 1);
            assignWhere(sweeping, vectors(r, i), c * x + y * s);
            assignWhere(sweeping, vectors(r, i + 1), y * c - x * s);
        }
    }

    // sqrt(x + 1). With vectors the root is taken in 64-bit arithmetic.
    V rootOfOnePlus(V x) {
        if constexpr (variant.vectors) {
            return in64(x, [](auto wide) { return sqrt(wide + decltype(wide)(1.0)); });
        } else {
            return sqrt(x + one);
        }
    }

    // Values that the sweeps have not delivered yet, and their product.
    void collect() {
        V ascending = one;
        for (Index i = 0; i < n; ++i) {
            const V di = d(i);
            assignWhere(collected(), values(i), di);
            ascending = ascending * di;
        }
        product = select(collected(), ascending, product);
    }
    Mask<V> collected() const { return variant.vectors ? all : flipped; }

    // Selection sort, largest first; of equal values the earlier stays ahead.
    void sort() {
        for (Index i = 0; i < n - 1; ++i) {
            V largest = values(i);
            V position = at(i);
            for (Index j = i + 1; j < n; ++j) {
                const V candidate = values(j);
                const Mask<V> larger = candidate > largest;
                largest = select(larger, candidate, largest);
                position = select(larger, at(j), position);
            }
            for (Index j = i + 1; j < n; ++j) {
                const Mask<V> chosen = position == at(j);
                if (!any(chosen)) continue;
                exchangeWhere(chosen, values(i), values(j));
                if constexpr (variant.vectors) exchangeColumnsWhere(chosen, i, j);
            }
        }
    }

    template <class Left, class Right>
    static void exchangeWhere(Mask<V> where, Left&& left, Right&& right) {
        const V x = left;
        const V y = right;
        assignWhere(where, left, y);
        assignWhere(where, right, x);
    }

    void exchangeColumnsWhere(Mask<V> where, Index i, Index j) {
        for (Index r = 0; r < n; ++r) exchangeWhere(where, vectors(r, i), vectors(r, j));
    }

    const V zero = V(T(0));
    const V half = V(T(0.5));
    const V one = V(T(1));
    const V two = V(T(2));
    const V eps = epsilon<V>();
    const Mask<V> all = zero == zero;
    const Mask<V> none = !all;

    N n;
    Work w;
    Values values;
    Vectors vectors;

    Mask<V> flipped = none; // swept from the top
    V begin = zero;         // row where the block at hand begins
    V dBegin = zero;        // diagonal element of that row
    V product = one;        // of the eigenvalues, for the singular test
};

} // namespace qorm::eigen
