// Plain scalar model of the factorisations and their solvers: one object, in the memory that a call
// has to leave, one operation after the other. Tests compare the library with it bit by bit.
#pragma once

#include "harness/call.h"

#include "qorm/types.h"

#include <cmath>
#include <limits>
#include <vector>

#if defined(__SSE__)
#include <xmmintrin.h>
#endif

namespace factorisations_oracle {

using harness::Call;
using harness::Function;
using harness::Layout;
using harness::Operand;

template <class T>
constexpr T eps = std::numeric_limits<T>::epsilon();

inline bool isUnrolled(int n) {
    return n >= 3 && n <= 6;
}

// An object in the image of an operand's memory. Objects that share memory see each other's writes.
template <class T>
class Image {
public:
    Image(const Operand& of, int n) : operand(of), object(n) {}

    class Element {
    public:
        Element(const Image& of, int row, int column) : image(of), i(row), j(column) {}
        Element(const Element&) = default;

        operator T() const { return image.operand.template expected<T>(image.object, i, j); }
        void operator=(T x) const { image.operand.template expect<T>(image.object, i, j, x); }
        void operator=(const Element& other) const { *this = T(other); }

    private:
        const Image& image;
        int i;
        int j;
    };

    Element operator()(int i, int j) const { return {*this, i, j}; }
    Element operator()(int i) const { return {*this, 0, i}; } // of a vector or indices
    int rows() const { return operand.rows; }
    int columns() const { return operand.columns; }

private:
    const Operand& operand;
    int object;
};

using Pivots = Image<std::int32_t>;

template <class T>
std::vector<T> elementsOf(const Image<T>& image) {
    std::vector<T> elements;
    for (int i = 0; i < image.rows(); ++i) {
        for (int j = 0; j < image.columns(); ++j) elements.push_back(image(i, j));
    }
    return elements;
}

template <class T>
void copy(const Image<T>& from, const Image<T>& to) {
    for (int i = 0; i < to.rows(); ++i) {
        for (int j = 0; j < to.columns(); ++j) to(i, j) = from(i, j);
    }
}

inline void setIdentity(const Pivots& p, int n) {
    for (int i = 0; i < n; ++i) p(i) = i;
}
inline void swap(const Pivots::Element& a, const Pivots::Element& b) {
    const std::int32_t before = a;
    a = b;
    b = before;
}

// Other sizes than 3 to 6 work in the destination. Where NaN is compared, the types differ.
template <class T>
qorStatus luInPlace(const Image<T>& a, const Pivots& p, const Image<T>& d) {
    constexpr bool is64f = sizeof(T) == 8;
    const int n = a.rows();
    const auto magnitude = [&](int i, int j) { return std::abs(T(d(p(i), j))); };
    copy(a, d);
    setIdentity(p, n);
    for (int k = 0; k < n - 1; ++k) {
        int best = k;
        for (int i = k + 1; i < n; ++i) {
            const T candidate = magnitude(i, k);
            const T largest = magnitude(best, k);
            if (is64f ? !(candidate <= largest) : candidate > largest) best = i;
        }
        const T pivot = magnitude(best, k);
        if (is64f ? !(pivot > eps<T>) : pivot <= eps<T>) return qorStatusSingular;
        swap(p(k), p(best));
        const T r = 1 / d(p(k), k);
        for (int i = k + 1; i < n; ++i) d(p(i), k) = d(p(i), k) * r;
        for (int i = k + 1; i < n; ++i) {
            for (int j = k + 1; j < n; ++j) {
                d(p(i), j) = d(p(i), j) - d(p(i), k) * d(p(k), j);
            }
        }
    }
    return magnitude(n - 1, n - 1) <= eps<T> ? qorStatusSingular : qorStatusOk;
}

// Sizes 3 to 6 work on a copy and write a row once its pivot has passed. The last test is of the
// element in the last row of the source, wherever its last pivot row is.
template <class T>
qorStatus luOfCopy(const Image<T>& a, const Pivots& p, const Image<T>& d) {
    const int n = a.rows();
    std::vector<T> copied = elementsOf(a);
    const auto w = [&](int i, int j) -> T& { return copied.begin()[i * n + j]; };
    const auto writeRow = [&](int i) {
        for (int j = 0; j < n; ++j) d(i, j) = w(i, j);
    };
    setIdentity(p, n);
    for (int k = 0; k < n - 1; ++k) {
        int best = k;
        T largest = std::abs(w(p(k), k));
        for (int i = k + 1; i < n; ++i) {
            const T candidate = std::abs(w(p(i), k));
            if (candidate > largest) best = i;
            if (k == 0)
                largest = largest > candidate ? largest : candidate;
            else
                largest = candidate > largest ? candidate : largest;
        }
        swap(p(k), p(best));
        if (!(largest >= eps<T>)) return qorStatusSingular;
        writeRow(p(k));
        const T r = 1 / w(p(k), k);
        for (int i = k + 1; i < n; ++i) {
            const T multiplier = w(p(i), k) * r;
            w(p(i), k) = multiplier;
            for (int j = k + 1; j < n; ++j) w(p(i), j) -= multiplier * w(p(k), j);
        }
    }
    if (!(std::abs(w(n - 1, n - 1)) >= eps<T>)) return qorStatusSingular;
    writeRow(p(n - 1));
    return qorStatusOk;
}

template <class T>
void solveLU(const Image<T>& a, const Pivots& p, const Image<T>& b, const Image<T>& x) {
    const int n = a.rows();
    const auto lu = [&](int i, int j) { return T(a(p(i), j)); };
    if (isUnrolled(n)) {
        std::vector<T> values(static_cast<std::size_t>(n));
        const auto y = [&](int i) -> T& { return values.begin()[i]; };
        for (int i = 0; i < n; ++i) {
            y(i) = b(p(i));
            for (int j = i - 1; j >= 0; --j) y(i) -= lu(i, j) * y(j);
        }
        for (int i = n - 1; i >= 0; --i) {
            for (int j = n - 1; j > i; --j) y(i) -= lu(i, j) * y(j);
            y(i) *= 1 / lu(i, i);
        }
        for (int i = 0; i < n; ++i) x(i) = y(i);
        return;
    }
    x(0) = b(p(0));
    for (int i = 1; i < n; ++i) {
        T s = 0;
        for (int j = 0; j < i; ++j) s += lu(i, j) * x(j);
        x(i) = b(p(i)) - s;
    }
    x(n - 1) = x(n - 1) / lu(n - 1, n - 1);
    for (int i = n - 2; i >= 0; --i) {
        T s = 0;
        for (int j = i + 1; j < n; ++j) s += lu(i, j) * x(j);
        x(i) = (x(i) - s) / lu(i, i);
    }
}

inline double reciprocalRoot(double s) {
    return 1 / std::sqrt(s);
}
inline float reciprocalRoot(float s) {
#if defined(__SSE__)
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
#else
    const float r = 1 / std::sqrt(s);
#endif
    return (s * r * r - 3) * r * -0.5F;
}

// What a pivot has to exceed.
inline double choleskyThreshold(const Function& function, int n, bool isContiguous) {
    if (function.layout == Layout::P && n == 3) return 0x1p-23;
    const bool isArray64f = function.array && function.elementSize == 8;
    if (isArray64f && function.layout == Layout::S && !isContiguous) {
        return n == 6 || !isUnrolled(n) ? 0x1p-52 : 0;
    }
    return 0;
}

template <class T>
qorStatus cholesky(const Image<T>& a, const Image<T>& d, T threshold) {
    for (int i = 0; i < a.rows(); ++i) {
        for (int j = 0; j < i; ++j) {
            T s = a(i, j);
            for (int k = 0; k < j; ++k) s -= d(i, k) * d(j, k);
            d(i, j) = s * d(j, j);
        }
        T s = a(i, i);
        for (int k = 0; k < i; ++k) s -= d(i, k) * d(i, k);
        if (!(s > threshold)) return qorStatusNotPositiveDefinite;
        d(i, i) = reciprocalRoot(s);
    }
    return qorStatusOk;
}

template <class T, class Source, class Result>
void sweepCholesky(const Image<T>& d, const Source& b, const Result& x) {
    const int n = d.rows();
    for (int i = 0; i < n; ++i) {
        T s = b(i);
        for (int j = 0; j < i; ++j) s -= d(i, j) * x(j);
        x(i) = s * d(i, i);
    }
    for (int i = n - 1; i >= 0; --i) {
        T s = x(i);
        for (int j = n - 1; j > i; --j) s -= d(j, i) * x(j);
        x(i) = s * d(i, i);
    }
}

// Sizes 3 to 6 store when all is done.
template <class T>
void solveCholesky(const Image<T>& d, const Image<T>& b, const Image<T>& x) {
    if (!isUnrolled(d.rows())) return sweepCholesky(d, b, x);
    std::vector<T> values = elementsOf(b);
    const auto y = [&](int i) -> T& { return values.begin()[i]; };
    sweepCholesky(d, y, y);
    for (int i = 0; i < d.rows(); ++i) x(i) = y(i);
}

inline int reflectorsOf(int width, int height) {
    return width == height ? width - 1 : width;
}

template <class T>
qorStatus qr(const Image<T>& source, const Image<T>& a) {
    const int width = a.columns();
    const int height = a.rows();
    std::vector<T> reflector(static_cast<std::size_t>(height));
    const auto v = [&](int i) -> T& { return reflector.begin()[i]; };
    copy(source, a);
    for (int k = 0; k < reflectorsOf(width, height); ++k) {
        T sigma = 0;
        for (int i = k; i < height; ++i) sigma += a(i, k) * a(i, k);
        if (sigma < eps<T>) return qorStatusDivideByZero;
        const T root = std::sqrt(sigma);
        const T q = 1 / (a(k, k) + (a(k, k) > 0 ? root : -root));
        T t = 1;
        v(k) = 1;
        for (int i = k + 1; i < height; ++i) {
            v(i) = a(i, k) * q;
            t += v(i) * v(i);
        }
        const T beta = -2 / t;
        for (int j = k; j < width; ++j) {
            T s = a(k, j);
            for (int i = k + 1; i < height; ++i) s += a(i, j) * v(i);
            s *= beta;
            for (int i = k; i < height; ++i) a(i, j) = a(i, j) + v(i) * s;
        }
        for (int i = k + 1; i < height; ++i) a(i, k) = v(i);
    }
    return qorStatusOk;
}

template <class T>
void solveQR(const Image<T>& a, const Image<T>& b, const Image<T>& x) {
    const int width = a.columns();
    const int height = a.rows();
    std::vector<T> rotated = elementsOf(b);
    const auto t = [&](int i) -> T& { return rotated.begin()[i]; };
    for (int k = 0; k < reflectorsOf(width, height); ++k) {
        T s = t(k);
        T norm = 1;
        for (int i = k + 1; i < height; ++i) {
            s += t(i) * a(i, k);
            norm += a(i, k) * a(i, k);
        }
        s *= -2 / norm;
        t(k) += s;
        for (int i = k + 1; i < height; ++i) t(i) += a(i, k) * s;
    }
    const int last = width - 1;
    x(last) = t(last) / a(last, last);
    for (int i = last - 1; i >= 0; --i) {
        if (width != height || !isUnrolled(width)) {
            T s = 0;
            for (int j = i + 1; j < width; ++j) s += a(i, j) * x(j);
            x(i) = (t(i) - s) / a(i, i);
        } else if (i > 0) {
            for (int j = last; j > i; --j) t(i) -= a(i, j) * x(j);
            x(i) = t(i) / a(i, i);
        } else {
            T s = a(0, last) * x(last);
            for (int j = last - 1; j > 0; --j) s += a(0, j) * x(j);
            x(0) = (t(0) - s) / a(0, 0);
        }
    }
}

// Does the work of a call on object n.
template <class T>
qorStatus doObject(const Call& call, const Function& function, int n) {
    const auto image = [&](std::string_view name) { return Image<T>(call.operand(name), n); };
    const auto pivots = [&](std::string_view name) { return Pivots(call.operand(name), n); };
    const Image<T> result = image("Dst");
    if (function.operation == "LUDecomp") {
        const bool copies = isUnrolled(result.rows());
        return (copies ? luOfCopy<T> : luInPlace<T>)(image("Src"), pivots("DstIndex"), result);
    }
    if (function.operation == "CholeskyDecomp") {
        const bool isContiguous = call.operand("Src").stride2 == function.elementSize &&
                                  call.operand("Dst").stride2 == function.elementSize;
        return cholesky(image("Src"), result,
                        T(choleskyThreshold(function, result.rows(), isContiguous)));
    }
    if (function.operation == "QRDecomp") return qr(image("Src"), result);
    if (function.operation == "LUBackSubst")
        solveLU(image("Src1"), pivots("SrcIndex"), image("Src2"), result);
    else if (function.operation == "CholeskyBackSubst")
        solveCholesky(image("Src1"), image("Src2"), result);
    else
        solveQR(image("Src1"), image("Src2"), result);
    return qorStatusOk;
}

} // namespace factorisations_oracle
