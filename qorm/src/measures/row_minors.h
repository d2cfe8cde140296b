// Inverses of sizes 3 to 6: every element is a cofactor times the reciprocal of the determinant.
#pragma once

#include "frame/lanes.h"
#include "measures/index_sets.h"

namespace qorm::measures {

// The minors of every set of k rows on one set of columns, or the negatives of them.
template <class V, int n, int k>
struct RowMinors {
    BySet<V, n, k> minor;
    bool negated;
};

template <class V, int n, class Matrix>
class Adjugate {
public:
    explicit Adjugate(const Matrix& matrix) : a(matrix) {}

    // work(j, minors of n - 1 rows on all columns but j), for j ascending. Each minor is computed
    // once and shared.
    template <class Work>
    void forEachColumn(const Work& work) const {
        if constexpr (n == 3) {
            work(at<0>, onColumns(1, 2));
            work(at<1>, onColumns(0, 2));
            work(at<2>, onColumns(0, 1));
        } else if constexpr (n == 4) {
            const auto on01 = onColumns(0, 1);
            const auto on23 = onColumns(2, 3);
            work(at<0>, with(1, on23));
            work(at<1>, with(0, on23));
            work(at<2>, with(3, on01));
            work(at<3>, with(2, on01));
        } else if constexpr (n == 5) {
            const auto on34 = onColumns(3, 4);
            const auto on234 = with(2, on34);
            work(at<0>, with(1, on234));
            work(at<1>, with(0, on234));
            work(at<2>, with(0, with(1, on34)));
            const auto on012 = with(2, onColumns(0, 1));
            work(at<3>, withOnTheRight(4, on012));
            work(at<4>, withOnTheRight(3, on012));
        } else {
            const auto on345 = with(3, onColumns(4, 5));
            const auto on2345 = with(2, on345);
            work(at<0>, with(1, on2345));
            work(at<1>, with(0, on2345));
            work(at<2>, with(0, with(1, on345)));
            const auto on012 = with(2, onColumns(0, 1));
            const auto on0123 = withOnTheRight(3, on012);
            work(at<3>, with(5, withOnTheRight(4, on012)));
            work(at<4>, with(5, on0123));
            work(at<5>, with(4, on0123));
        }
    }

    // Down column 0, by the minors on all other columns.
    V determinant(const RowMinors<V, n, n - 1>& on) const {
        constexpr unsigned all = (1U << n) - 1;
        const auto minor = [&](auto i) { return on.minor[Set<without(all, i)>()]; };
        V sum = (n % 2 == 0 ? V(0) - a(n - 1, 0) : a(n - 1, 0)) * minor(at<n - 1>);
        [&]<int... step>(std::integer_sequence<int, step...>) {
            ((step % 2 == n % 2 ? sum = sum + a(n - 2 - step, 0) * minor(at<n - 2 - step>)
                                : sum = sum - a(n - 2 - step, 0) * minor(at<n - 2 - step>)),
             ...);
        }
        (std::make_integer_sequence<int, n - 1>());
        return sum;
    }

private:
    template <int k>
    using Minors = RowMinors<V, n, k>;

    Minors<2> onColumns(int c0, int c1) const {
        Minors<2> on;
        on.negated = false;
        forEachSet<n, 2>([&](auto rows) {
            constexpr auto r = membersOf<rows>();
            on.minor[rows] = a(r[0], c0) * a(r[1], c1) - a(r[0], c1) * a(r[1], c0);
        });
        return on;
    }

    // With one more column c, by expansion down it. It stands left of all others, or right of them
    // where that makes no difference to the signs.
    template <int k>
    Minors<k + 1> with(int c, const Minors<k>& on) const {
        Minors<k + 1> wider;
        wider.negated = on.negated;
        forEachSet<n, k + 1>([&](auto rows) {
            constexpr auto r = membersOf<rows>();
            // a(rᵢ,c) times the minor without that row.
            const auto term = [&](auto i) {
                return a(r[i], c) * on.minor[Set<without(rows, r[i])>()];
            };
            V& sum = wider.minor[rows];
            if constexpr (k == 2) sum = term(at<2>) - term(at<1>) + term(at<0>);
            if constexpr (k == 3) sum = term(at<0>) - term(at<3>) + term(at<2>) - term(at<1>);
            if constexpr (k == 4) {
                sum = term(at<4>) - term(at<3>) + term(at<2>) - term(at<1>) + term(at<0>);
            }
        });
        return wider;
    }

    // The same sum for a column on the right of three is the negative of the minor.
    Minors<4> withOnTheRight(int c, const Minors<3>& on) const {
        Minors<4> wider = with(c, on);
        wider.negated = !on.negated;
        return wider;
    }

    const Matrix& a;
};

// Writes the inverse of `a` to `inverse` and returns its determinant, which tells the caller whether
// the inverse means anything.
template <int n, class V, class Matrix, class Inverse>
[[gnu::flatten]] V invertByMinors(const Matrix& a, const Inverse& inverse) {
    const Adjugate<V, n, Matrix> adjugate(a);
    V determinant;
    V reciprocal;
    adjugate.forEachColumn([&](auto j, const RowMinors<V, n, n - 1>& on) {
        if constexpr (j == 0) {
            determinant = adjugate.determinant(on);
            reciprocal = V(1) / determinant;
        }
        [&]<int... i>(std::integer_sequence<int, i...>) {
            const auto cofactor = [&](auto row) {
                constexpr unsigned all = (1U << n) - 1;
                const V minor = on.minor[Set<without(all, row)>()];
                const bool isNegative = (row + j) % 2 != 0;
                return isNegative != on.negated ? V(0) - minor : minor;
            };
            ((inverse(j, i) = cofactor(at<i>) * reciprocal), ...);
        }
        (std::make_integer_sequence<int, n>());
    });
    return determinant;
}

} // namespace qorm::measures
