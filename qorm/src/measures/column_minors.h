// Determinants of sizes 3 to 6 by Laplace expansion with shared minors.
#pragma once

#include "measures/index_sets.h"

namespace qorm::measures {

// The minors of the first k rows for every set of k columns, from two rows downward. Each expands
// along its last row, from the highest column; brackets and signs are as they always were.
template <class V, int n, class Matrix>
class ColumnMinors {
public:
    explicit ColumnMinors(const Matrix& matrix) : a(matrix) {}

    V determinant() {
        BySet<V, n, 2> minors;
        forEachSet<n, 2>([&](auto set) {
            constexpr auto c = membersOf<set>();
            minors[set] = a(0, c[0]) * a(1, c[1]) - a(0, c[1]) * a(1, c[0]);
        });
        return expanded<3>(minors);
    }

private:
    // The determinant, by the minors of k - 1 rows.
    template <int k>
    V expanded(const BySet<V, n, k - 1>& smaller) {
        BySet<V, n, k> minors;
        forEachSet<n, k>([&](auto set) { minors[set] = minor<k, set>(smaller); });
        if constexpr (k == n)
            return minors[Set<(1U << n) - 1>()];
        else
            return expanded<k + 1>(minors);
    }

    template <int k, unsigned set>
    V minor(const BySet<V, n, k - 1>& smaller) {
        constexpr auto c = membersOf<set>();
        // a(k-1,cᵢ) times the minor without that column.
        const auto term = [&](auto i) {
            return a(k - 1, c[i]) * smaller[Set<without(set, c[i])>()];
        };
        const auto negativeTermOf0 = [&] {
            return (V(0) - a(k - 1, c[0])) * smaller[Set<without(set, c[0])>()];
        };
        if constexpr (k == 3) return term(at<2>) - term(at<1>) + term(at<0>);
        if constexpr (k == 4) return term(at<3>) - term(at<2>) + term(at<1>) + negativeTermOf0();
        if constexpr (k == 5 && n == 6 && set == 0b111011) {
            return term(at<4>) + term(at<2>) - term(at<3>) - term(at<1>) + term(at<0>);
        }
        if constexpr (k == 5)
            return term(at<4>) - term(at<3>) + term(at<2>) - term(at<1>) + term(at<0>);
        if constexpr (k == 6) {
            return term(at<5>) - term(at<4>) + term(at<3>) - term(at<2>) + negativeTermOf0() +
                   term(at<1>);
        }
    }

    const Matrix& a;
};

template <int n, class V, class Matrix>
[[gnu::flatten]] V determinantByMinors(const Matrix& a) {
    return ColumnMinors<V, n, Matrix>(a).determinant();
}

} // namespace qorm::measures
