// Plain scalar model of the vector operations and of the products of a matrix with vectors: what
// memory holds after a call, one operation after the other. Tests compare the library with it bit by
// bit.
#pragma once

#include "harness/call.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace vectors_oracle {

using harness::Call;
using harness::contains;
using harness::Function;
using harness::Layout;
using harness::Operand;

inline bool isUnrolled(int n) {
    return n >= 3 && n <= 6;
}
inline bool isAtBoundary(const char* address, std::uintptr_t bytes) {
    return reinterpret_cast<std::uintptr_t>(address) % bytes == 0;
}

// Terms of a sum, in their order.
template <class T>
using Terms = std::span<const T>;

template <class T>
T chain(T sum, Terms<T> terms) {
    for (const T& term : terms) sum += term;
    return sum;
}
template <class T>
T chainFromFirst(Terms<T> terms) {
    return chain(terms[0], terms.subspan(1));
}
template <class T>
T plainSum(Terms<T> terms, bool unrolled) {
    return unrolled ? chainFromFirst(terms) : chain(T(0), terms);
}

// In 32 bytes of lanes, by eight terms a time.
template <class T>
T blockSum(T start, Terms<T> terms) {
    constexpr std::size_t lanes = 32 / sizeof(T);
    std::array<T, lanes> L = {start};
    for (; terms.size() >= 8; terms = terms.subspan(8)) {
        for (std::size_t t = 0; t < 8; ++t) L[t % lanes] += terms[t];
    }
    if constexpr (lanes == 8)
        return chain(((L[0] + L[4]) + (L[1] + L[5])) + ((L[2] + L[6]) + (L[3] + L[7])), terms);
    else
        return chain((L[0] + L[2]) + (L[1] + L[3]), terms);
}

// The cores that add in blocks peel off what lies before a boundary of 16 bytes.
template <class T>
T peeledSum(Terms<T> terms, bool unrolled, const char* vector) {
    const std::size_t shortest = sizeof(T) == 4 ? 11 : 9;
    if (unrolled || terms.size() < shortest || !isAtBoundary(vector, sizeof(T))) {
        return plainSum(terms, unrolled);
    }
    const auto beyond = reinterpret_cast<std::uintptr_t>(vector) % 16;
    const std::size_t peel = (16 - beyond) % 16 / sizeof(T);
    const bool isOneDouble = sizeof(T) == 8 && peel == 1;
    const T start = isOneDouble ? terms[0] : chain(T(0), terms.first(peel));
    return blockSum(start, terms.subspan(peel));
}

// Two cores have another rule where everything lies at boundaries of 16 bytes.
template <class T>
T alignedSum(Terms<T> terms, bool unrolled) {
    const T zero = 0;
    if (unrolled && terms.size() > 3) {
        const T sum =
            ((zero + terms[0]) + (zero + terms[1])) + ((zero + terms[2]) + (zero + terms[3]));
        return chain(sum, terms.subspan(4));
    }
    if (unrolled || terms.size() < 8) return plainSum(terms, unrolled);
    return blockSum(zero, terms);
}

// Elements of a source when they are read, or as they were before the first write.
template <class T>
class Source {
public:
    Source(const Operand& operand, bool once) : operand_(operand) {
        if (!once) return;
        operand.forEachElement(
            [&](int n, int i, int j) { held_.push_back(operand.expected<T>(n, i, j)); });
    }

    T operator()(int n, int i, int j) const {
        if (held_.empty()) return operand_.expected<T>(n, i, j);
        return held_[static_cast<std::size_t>(i * operand_.readColumns() + j)];
    }

private:
    const Operand& operand_;
    std::vector<T> held_;
};

// Whether a call has straight-line code for its size, where that decides what overlapping operands
// give.
inline bool isElementwiseUnrolled(const Function& function, const Call& call) {
    const Operand& result = call.operand("Dst");
    const int n = result.columns;
    const bool isSquare = result.parameter.isVector() || result.rows == n;
    if (!isSquare || !isUnrolled(n)) return false;
    const std::string& shape = function.shape;
    const bool contiguous = call.isContiguous();
    if (function.operation == "Saxpy") return true;
    if (function.operation == "LComb") return shape != "vv" || !contiguous;
    if (function.operation == "Mul") {
        if (function.layout == Layout::P)
            return function.operands == "vc" || function.array || n > 4;
        if (function.operands == "vc") return false;
        return contiguous || (function.array && function.layout == Layout::S);
    }
    if (function.layout == Layout::P || function.operands != "vv") return false;
    if (shape == "vva") return function.layout == Layout::S && function.elementSize == 4;
    return true;
}

// A single operand of an array's straight-line code. Lists of sums are done like single vectors.
inline bool isReadOnce(const Function& function, const Call& call) {
    if (!function.array) return false;
    if (function.operation == "DotProduct") return isUnrolled(call.operand("Src1").columns);
    const bool oneByOne = contains("Add Sub", function.operation) && function.layout == Layout::L;
    return !oneByOne && isElementwiseUnrolled(function, call);
}

template <class T>
void expectElements(const Call& call, const Function& function) {
    const Operand& result = call.operand("Dst");
    const bool hasTwo = function.operands == "vv";
    const bool once = isReadOnce(function, call);
    const auto sourceOf = [&](std::string_view name) {
        const Operand& operand = call.operand(name);
        return Source<T>(operand, once && !operand.parameter.array);
    };
    const auto constant = [&](std::string_view name) {
        return call.operand(name).template expected<T>(0, 0, 0);
    };
    const Source<T> first = sourceOf(hasTwo ? "Src1" : "Src");
    const Source<T> second = sourceOf(hasTwo ? "Src2" : "Src");
    result.forEachElement([&](int n, int i, int j) {
        const T x = first(n, i, j);
        const T y = hasTwo ? second(n, i, j) : T(0);
        const auto value = [&]() -> T {
            if (function.operation == "Saxpy") return x * constant("val") + y;
            if (function.operation == "LComb") return x * constant("val1") + y * constant("val2");
            if (function.operation == "Mul") return x * constant("val");
            if (function.operation == "Add") return x + (hasTwo ? y : constant("val"));
            if (hasTwo) return x - y;
            return function.operands == "vc" ? x - constant("val") : constant("val") - x;
        };
        result.expect<T>(n, i, j, value());
    });
}

template <class T>
T dotProduct(const Call& call, const Function& function, int n, Terms<T> products) {
    const Operand& a = call.operand("Src1");
    const Operand& b = call.operand("Src2");
    const bool unrolled = isUnrolled(a.columns);
    if (function.layout != Layout::P && !call.isContiguous()) {
        if (!unrolled || a.columns < 5) return plainSum(products, unrolled);
        std::vector<T> lastFirst(products.begin(), products.end());
        std::rotate(lastFirst.begin(), lastFirst.begin() + 4, lastFirst.end());
        return chainFromFirst(Terms<T>(lastFirst));
    }
    if (function.layout == Layout::S && function.shape == "vv") {
        return peeledSum(products, unrolled, b.address(0, 0, 0));
    }
    if (function.name == "qormDotProduct_vava_32f") {
        const bool aligned = isAtBoundary(a.base, 16) && a.stride0 % 16 == 0 &&
                             isAtBoundary(b.base, 16) && b.stride0 % 16 == 0;
        return aligned ? alignedSum(products, unrolled)
                       : peeledSum(products, unrolled, b.address(n, 0, 0));
    }
    return plainSum(products, unrolled);
}

template <class T>
void expectDotProducts(const Call& call, const Function& function) {
    const Operand& a = call.operand("Src1");
    const Operand& b = call.operand("Src2");
    const Operand& result = call.operand("Dst");
    const Source<T> second(b, isReadOnce(function, call) && !b.parameter.array);
    for (int n = 0; n < result.objects; ++n) {
        std::vector<T> products;
        for (int k = 0; k < a.columns; ++k) {
            products.push_back(a.expected<T>(n, 0, k) * second(n, 0, k));
        }
        result.expect(n, 0, 0, dotProduct(call, function, n, Terms<T>(products)));
    }
}

template <class T>
void expectNorms(const Call& call, const Function& function) {
    const Operand& a = call.operand("Src");
    const Operand& result = call.operand("Dst");
    const bool unrolled = isUnrolled(a.columns);
    for (int n = 0; n < result.objects; ++n) {
        std::vector<T> squares;
        for (int k = 0; k < a.columns; ++k) {
            squares.push_back(a.expected<T>(n, 0, k) * a.expected<T>(n, 0, k));
        }
        const Terms<T> terms(squares);
        const T sum = function.shape == "v" && call.isContiguous()
                          ? peeledSum(terms, unrolled, a.address(0, 0, 0))
                          : plainSum(terms, unrolled);
        result.expect(n, 0, 0, std::sqrt(sum));
    }
}

// A single pair is read as it is used, objects of arrays before they are written.
template <class T>
void expectCrossProducts(const Call& call, const Function& function) {
    const Operand& result = call.operand("Dst");
    for (int n = 0; n < result.objects; ++n) {
        const auto element = [&](int i) -> T {
            const auto a = [&](int k) { return call.operand("Src1").expected<T>(n, 0, k % 3); };
            const auto b = [&](int k) { return call.operand("Src2").expected<T>(n, 0, k % 3); };
            return a(i + 1) * b(i + 2) - a(i + 2) * b(i + 1);
        };
        std::array<T, 3> product = {element(0), element(1), element(2)};
        for (int i = 0; i < 3; ++i) {
            result.expect(n, 0, i, function.array ? product.begin()[i] : element(i));
        }
    }
}

// Some array forms store an element's running sum at each step, others its last value.
enum class Stores { eachStep, theSum };

// Products of a matrix with vectors, with or without another vector added.
template <class T>
class MatrixVector {
public:
    MatrixVector(const Call& call, const Function& function, Stores stores)
        : matrix_(call.operand("Src1")),
          x_(call.operand("Src2")),
          result_(call.operand("Dst")),
          stores_(stores) {
        const int inner = x_.columns;
        unrolled_ = inner == result_.columns && isUnrolled(inner);
        if (function.operation == "Gaxpy") y_ = &call.operand("Src3");
        packs_ = function.name == "qormMul_mva_32f" && call.isContiguous();
        aligned_ = isAtBoundary(matrix_.base, 16) && matrix_.stride1 % 16 == 0 &&
                   isAtBoundary(x_.base, 16) && x_.stride0 % 16 == 0 &&
                   isAtBoundary(result_.base, 16) && result_.stride0 % 16 == 0;
        once_ = unrolled_ && function.layout == Layout::S && !x_.parameter.array;
    }

    void expectObjects() const {
        const Source<T> vector(x_, once_);
        for (int n = 0; n < result_.objects; ++n) {
            if (unrolled_)
                expectUnrolled(n, vector);
            else
                expectRows(n, vector);
        }
    }

private:
    T sumOf(int n, Terms<T> products) const {
        if (!packs_) return plainSum(products, unrolled_);
        return aligned_ ? alignedSum(products, unrolled_)
                        : peeledSum(products, unrolled_, x_.address(n, 0, 0));
    }

    // Products of a row with a vector.
    template <class Vector>
    std::vector<T> productsOf(int n, int i, const Vector& vector) const {
        std::vector<T> products;
        for (int k = 0; k < x_.columns; ++k) {
            products.push_back(matrix_.expected<T>(n, i, k) * vector(k));
        }
        return products;
    }

    // The vector is read first. Sums with another one are held until all are done.
    void expectUnrolled(int n, const Source<T>& vector) const {
        std::vector<T> x;
        for (int k = 0; k < x_.columns; ++k) x.push_back(vector(n, 0, k));
        std::vector<T> sums;
        for (int i = 0; i < result_.columns; ++i) {
            const std::vector<T> products = productsOf(n, i, [&](int k) { return x.begin()[k]; });
            T sum = sumOf(n, Terms<T>(products));
            if (y_ == nullptr)
                result_.expect(n, 0, i, sum);
            else
                sums.push_back(sum + y_->expected<T>(n, 0, i));
        }
        for (int i = 0; y_ != nullptr && i < result_.columns; ++i) {
            result_.expect(n, 0, i, sums.begin()[i]);
        }
    }

    void expectRows(int n, const Source<T>& vector) const {
        for (int i = 0; i < result_.columns; ++i) {
            T sum = 0;
            result_.expect(n, 0, i, sum);
            if (packs_) {
                const auto x = [&](int k) { return vector(n, 0, k); };
                const std::vector<T> products = productsOf(n, i, x);
                sum = sumOf(n, Terms<T>(products));
            } else {
                for (int k = 0; k < x_.columns; ++k) {
                    sum += matrix_.expected<T>(n, i, k) * vector(n, 0, k);
                    if (stores_ == Stores::eachStep) result_.expect(n, 0, i, sum);
                }
            }
            result_.expect(n, 0, i, sum);
            if (y_ != nullptr) result_.expect(n, 0, i, sum + y_->expected<T>(n, 0, i));
        }
    }

    const Operand& matrix_;
    const Operand& x_;
    const Operand* y_ = nullptr;
    const Operand& result_;
    Stores stores_;
    bool unrolled_;
    bool once_;
    bool packs_;
    bool aligned_;
};

// Does the work of a call in the image of its memory.
template <class T>
void expectResults(const Call& call, const Function& function, Stores stores = Stores::eachStep) {
    if (function.operands == "mv")
        MatrixVector<T>(call, function, stores).expectObjects();
    else if (function.operation == "DotProduct")
        expectDotProducts<T>(call, function);
    else if (function.operation == "L2Norm")
        expectNorms<T>(call, function);
    else if (function.operation == "CrossProduct")
        expectCrossProducts<T>(call, function);
    else
        expectElements<T>(call, function);
}

} // namespace vectors_oracle
