// The symmetric eigenproblem of sizes 1 and 2.
#pragma once

#include "eigen/symmetric_ql.h"
#include "frame/elements.h"
#include "qorm/types.h"

#include <cmath>
#include <type_traits>

namespace qorm::eigen {

template <class Src, class T, class Vectors>
qorStatus solveSize1(const Src& src, Run<T> values, const Vectors& vectors) {
    values(0) = T(src(0, 0));
    if constexpr (!std::is_same_v<Vectors, NoVectors>) vectors(0, 0) = 1;
    return qorStatusOk;
}

// The unit vector (sine, cosine) of the first axis, for the sum or difference cs of the diagonal's
// difference and the root, and the doubled off-diagonal element tb.
template <class T>
struct Axis {
    T sine;
    T cosine;
};

template <class T>
Axis<T> axisOf(T cs, T tb) {
    const auto inverseRoot = [](auto x) { return 1 / std::sqrt(x); };
    if (std::fabs(cs) > std::fabs(tb)) {
        const T ratio = -tb / cs;
        const T sine = in64(ratio * ratio + 1, inverseRoot);
        return {sine, ratio * sine};
    }
    if (std::fabs(tb) <= epsilon<T>()) return {0, 1};
    const T ratio = -cs / tb;
    const T cosine = in64(ratio * ratio + 1, inverseRoot);
    return {ratio * cosine, cosine};
}

// The values are not sorted: a negative trace gives the smaller first.
template <class T, class Work, class Vectors>
qorStatus solveSize2(const Work& work, Run<T> values, const Vectors& vectors) {
    const T eps = epsilon<T>();
    const T a = work(0, 0);
    const T b = work(0, 1);
    const T d = work(1, 1);
    const T determinant = a * d - b * b;
    if (std::fabs(determinant) <= eps) return qorStatusSingular;

    const T difference = a - d;
    const T trace = d + a;
    const T tb = 2 * b;
    const T root = std::sqrt(difference * difference + tb * tb);
    const bool isNegative = trace < -eps;
    if (trace > eps || isNegative) {
        const T value = isNegative ? T(0.5) * (trace - root) : (root + trace) * T(0.5);
        values(0) = value;
        values(1) = determinant / value;
    } else {
        values(0) = T(0.5) * root;
        values(1) = T(-0.5) * root;
    }

    if constexpr (!std::is_same_v<Vectors, NoVectors>) {
        const bool rises = difference >= -eps;
        const auto [sine, cosine] = axisOf(rises ? difference + root : difference - root, tb);
        if (isNegative == rises) {
            vectors(0, 0) = cosine;
            vectors(1, 0) = sine;
            vectors(0, 1) = -sine;
            vectors(1, 1) = cosine;
        } else {
            vectors(0, 0) = -sine;
            vectors(1, 0) = cosine;
            vectors(0, 1) = -cosine;
            vectors(1, 1) = -sine;
        }
    }
    return qorStatusOk;
}

} // namespace qorm::eigen
