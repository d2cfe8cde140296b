#include "lanes.h"

#include "closed_forms.h"
#include "factors.h"

#include <type_traits>
#include <utility>

#if defined(__SSE__)
#include <immintrin.h>
#endif

namespace bench {

namespace {

#if defined(__AVX512F__)
constexpr int registerBytes = 64;
#elif defined(__AVX__)
constexpr int registerBytes = 32;
#else
constexpr int registerBytes = 16;
#endif

template <class T>
struct RegisterOf {
    typedef T Type __attribute__((vector_size(registerBytes), may_alias));
};
template <class T>
using Register = typename RegisterOf<T>::Type;
template <class T>
constexpr int lanes = registerBytes / sizeof(T);

template <class T>
Register<T>& at(T* p) {
    return *reinterpret_cast<Register<T>*>(p);
}

template <class T, int n>
using Tile = Register<T>[n][n];

// Element (i, j) of the objects from k on.
template <class T>
auto elementsOf(Planes<T> a, int n, std::ptrdiff_t k) {
    return [=](int i, int j) -> Register<T>& { return at(a.base + (i * n + j) * a.step + k); };
}

// A single matrix is in all lanes.
template <class T, int n, bool isSingle = false>
void load(Planes<T> a, std::ptrdiff_t k, Tile<T, n>& m) {
    const auto elements = elementsOf(a, n, isSingle ? 0 : k);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            m[i][j] = isSingle ? Register<T>{} + elements(i, j)[0] : elements(i, j);
        }
    }
}

// first(i, l) is a register or a scalar.
template <class T, int n, class First>
[[gnu::always_inline]] inline void multiply(const First& first, const Tile<T, n>& second,
                                            Planes<T> d, std::ptrdiff_t k) {
    const auto product = elementsOf(d, n, k);
    for (int i = 0; i < n; ++i) {
        Register<T> row[n];
        for (int l = 0; l < n; ++l) {
            const auto x = first(i, l);
            for (int j = 0; j < n; ++j) {
                const Register<T> term = x * second[l][j];
                row[j] = l == 0 ? term : row[j] + term;
            }
        }
        for (int j = 0; j < n; ++j) product(i, j) = row[j];
    }
}

// Unrolled: else compilers keep the tile in memory.
template <class T, int n>
Register<T> eliminate(Tile<T, n>& m) {
    Register<T> determinant = m[0][0];
#pragma GCC unroll 8
    for (int p = 0; p + 1 < n; ++p) {
        const Register<T> r = 1 / m[p][p];
#pragma GCC unroll 8
        for (int i = p + 1; i < n; ++i) {
            const Register<T> f = m[i][p] * r;
#pragma GCC unroll 8
            for (int j = p + 1; j < n; ++j) m[i][j] -= f * m[p][j];
        }
        determinant *= m[p + 1][p + 1];
    }
    return determinant;
}

// Gauss and Jordan's elimination, in place.
template <class T, int n>
void invert(Tile<T, n>& m) {
#pragma GCC unroll 8
    for (int p = 0; p < n; ++p) {
        const Register<T> r = 1 / m[p][p];
#pragma GCC unroll 8
        for (int j = 0; j < n; ++j) m[p][j] = j == p ? r : m[p][j] * r;
#pragma GCC unroll 8
        for (int i = 0; i < n; ++i) {
            if (i == p) continue;
            const Register<T> f = m[i][p];
            m[i][p] = Register<T>{};
#pragma GCC unroll 8
            for (int j = 0; j < n; ++j) m[i][j] -= f * m[p][j];
        }
    }
}

// work(constant n, first object of a register) for all objects.
template <class T, class Work>
void registerByRegister(int size, std::ptrdiff_t count, const Work& work) {
    const auto loop = [&](auto n) {
        if (n != size) return;
        for (std::ptrdiff_t k = 0; k < count; k += lanes<T>) work(n, k);
    };
    [&]<int... sizes>(std::integer_sequence<int, sizes...>) {
        (loop(std::integral_constant<int, sizes>()), ...);
    }
    (std::integer_sequence<int, 2, 3, 4, 5, 6, 8, 16>());
}

template <class T>
struct LaneMath {
    using Bits = decltype(Register<T>() < Register<T>());

    static Register<T> number(int i) { return Register<T>{} + T(i); }
    static Register<T> magnitude(Register<T> x) {
        const Register<T> signs = -Register<T>{};
        return (Register<T>)((Bits)x & ~(Bits)signs);
    }
    static Register<T> root(Register<T> x) {
        for (int lane = 0; lane < lanes<T>; ++lane) x[lane] = std::sqrt(x[lane]);
        return x;
    }
    // As in the library: an estimate of 12 bits and a step of Newton's method where there is one.
    static Register<T> reciprocalRoot(Register<T> x) {
        if constexpr (sizeof(T) == 4) {
            const Register<T> r = estimate(x);
            return r * (x * r * r - 3) * T(-0.5);
        } else {
            return 1 / root(x);
        }
    }

private:
    static Register<T> estimate(Register<T> x) {
#if defined(__AVX512F__)
        // The unmasked intrinsic warns in GCC 12.
        return _mm512_maskz_rsqrt14_ps(0xFFFF, x);
#elif defined(__AVX__)
        return _mm256_rsqrt_ps(x);
#elif defined(__SSE__)
        return _mm_rsqrt_ps(x);
#else
        return 1 / root(x);
#endif
    }
};

template <class T, Factorisation factorisation>
auto kernelOf() {
    if constexpr (factorisation == Factorisation::lu) return Lu<StepBySelection<LaneMath<T>>>();
    if constexpr (factorisation == Factorisation::cholesky) return Cholesky<LaneMath<T>>();
    if constexpr (factorisation == Factorisation::qr) return Qr<LaneMath<T>>();
}

// A vector of the objects from k on: elements by their number, which may differ from lane to lane.
template <class T, int n>
struct Column {
    Planes<T> values;
    std::ptrdiff_t k;

    Register<T>& operator()(int i) const { return at(values.base + i * values.step + k); }
    Register<T> operator()(const Register<T>& numbers) const {
        Register<T> chosen = (*this)(0);
#pragma GCC unroll 16
        for (int i = 1; i < n; ++i) chosen = numbers == T(i) ? (*this)(i) : chosen;
        return chosen;
    }
};

// What is the same for all objects.
template <class T>
void spread(T value, Register<T>& lanes) {
    lanes = Register<T>{} + value;
}
template <class T>
void spread(T value, int& number) {
    number = static_cast<int>(value);
}

template <class T, Factorisation factorisation, int rows, int columns>
class LaneTasks {
public:
    explicit LaneTasks(const SystemsInLanes<T>& given) : systems(given) {}

    void run(Task task) const {
        switch (task) {
        case Task::factor:
            return forRegisters([&](std::ptrdiff_t k) { factor(k); });
        case Task::solve:
            return forRegisters([&](std::ptrdiff_t k) { solve(k); });
        case Task::factorAndSolve:
            return forRegisters([&](std::ptrdiff_t k) { factorAndSolve(k); });
        case Task::solveWithOne:
            return solveWithOne();
        }
    }

private:
    using Kernel = decltype(kernelOf<T, factorisation>());
    using Matrix = Register<T>[rows][columns];
    using Vector = Register<T>[rows];
    static constexpr int extras = Kernel::template extras<rows, columns>;

    template <class Work>
    void forRegisters(const Work& work) const {
        for (std::ptrdiff_t k = 0; k < systems.count; k += lanes<T>) work(k);
    }
    template <class Work>
    static void forUsed(const Work& work) {
#pragma GCC unroll 16
        for (int i = 0; i < rows; ++i) {
#pragma GCC unroll 16
            for (int j = 0; j < columns; ++j) {
                if (Kernel::uses(i, j)) work(i, j);
            }
        }
    }
    static void load(Planes<T> from, std::ptrdiff_t k, Matrix& m) {
        const auto elements = elementsOf(from, columns, k);
        forUsed([&](int i, int j) { m[i][j] = elements(i, j); });
    }

    void factor(std::ptrdiff_t k) const {
        Matrix m;
        Vector e;
        load(systems.a, k, m);
        Kernel::template factor<rows, columns>(m, e);
        const auto elements = elementsOf(systems.factors, columns, k);
        forUsed([&](int i, int j) { elements(i, j) = m[i][j]; });
        const Column<T, rows> kept = {systems.extras, k};
        for (int i = 0; i < extras; ++i) kept(i) = e[i];
    }
    template <class Extras>
    void solve(const Matrix& m, const Extras& e, std::ptrdiff_t k) const {
        Vector x;
        Kernel::template solve<rows, columns>(m, e, Column<T, rows>{systems.b, k}, x);
        const Column<T, columns> solution = {systems.x, k};
        for (int i = 0; i < columns; ++i) solution(i) = x[i];
    }
    void solve(std::ptrdiff_t k) const {
        Matrix m;
        Vector e;
        load(systems.factors, k, m);
        const Column<T, rows> kept = {systems.extras, k};
        for (int i = 0; i < extras; ++i) e[i] = kept(i);
        solve(m, e, k);
    }
    void factorAndSolve(std::ptrdiff_t k) const {
        Matrix m;
        Vector x;
        load(systems.a, k, m);
        const Column<T, rows> b = {systems.b, k};
        for (int i = 0; i < rows; ++i) x[i] = b(i);
        Kernel::template factorAndSolve<rows, columns>(m, x);
        const Column<T, columns> solution = {systems.x, k};
        for (int i = 0; i < columns; ++i) solution(i) = x[i];
    }
    static auto extraOfAll() {
        if constexpr (factorisation == Factorisation::lu)
            return int();
        else
            return Register<T>();
    }
    void solveWithOne() const {
        Matrix m;
        decltype(extraOfAll()) e[rows];
        const auto elements = elementsOf(systems.factors, columns, 0);
        forUsed([&](int i, int j) { spread<T>(elements(i, j)[0], m[i][j]); });
        const Column<T, rows> kept = {systems.extras, 0};
        for (int i = 0; i < extras; ++i) spread<T>(kept(i)[0], e[i]);
        forRegisters([&](std::ptrdiff_t k) { solve(m, e, k); });
    }

    const SystemsInLanes<T>& systems;
};

} // namespace

template <class T, SingleOperand single>
void multiplyInLanes(int size, Planes<T> a, Planes<T> b, Planes<T> d, std::ptrdiff_t count) {
    registerByRegister<T>(size, count, [&](auto n, std::ptrdiff_t k) {
        Tile<T, n> second;
        load<T, n, single == SingleOperand::second>(b, k, second);
        if constexpr (single == SingleOperand::first) {
            const auto elements = elementsOf(a, n, 0);
            multiply<T, n>([&](int i, int l) { return elements(i, l)[0]; }, second, d, k);
        } else {
            multiply<T, n>(elementsOf(a, n, k), second, d, k);
        }
    });
}

template <class T>
void determinantsInLanes(int size, Planes<T> a, T* determinants, std::ptrdiff_t count) {
    registerByRegister<T>(size, count, [&](auto n, std::ptrdiff_t k) {
        if constexpr (n <= largestClosedForm) {
            at(determinants + k) = closedDeterminant<n>(elementsOf(a, n, k));
        } else {
            Tile<T, n> m;
            load<T, n>(a, k, m);
            at(determinants + k) = eliminate<T, n>(m);
        }
    });
}

template <class T>
void invertInLanes(int size, Planes<T> a, Planes<T> d, std::ptrdiff_t count) {
    registerByRegister<T>(size, count, [&](auto n, std::ptrdiff_t k) {
        Tile<T, n> m;
        load<T, n>(a, k, m);
        const auto inverse = elementsOf(d, n, k);
        if constexpr (n <= largestClosedForm) {
            closedInverse<n>([&](int i, int j) { return m[i][j]; }, inverse);
        } else {
            invert<T, n>(m);
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) inverse(i, j) = m[i][j];
            }
        }
    });
}

template <class T, Factorisation factorisation>
void runInLanes(Task task, const SystemsInLanes<T>& systems) {
    const auto runSize = [&]<int rows, int columns>() {
        if (rows != systems.rows || columns != systems.columns) return;
        LaneTasks<T, factorisation, rows, columns>(systems).run(task);
    };
    [&]<int... sizes>(std::integer_sequence<int, sizes...>) {
        (runSize.template operator()<sizes, sizes>(), ...);
    }
    (std::integer_sequence<int, 3, 4, 5, 6, 8, 16>());
    if constexpr (factorisation == Factorisation::qr) runSize.template operator()<8, 4>();
}

template <class T>
void multiplyAndAdd(std::ptrdiff_t operations) {
    // Independent chains, enough to hide the latency of one operation.
    constexpr int chains = 6;
    const volatile T one = 1;
    const Register<T> x = Register<T>{} + one;
    Register<T> products[chains];
    Register<T> sums[chains];
    for (int chain = 0; chain < chains; ++chain) products[chain] = sums[chain] = x;
    for (std::ptrdiff_t done = 0; done < operations; done += 2 * chains * lanes<T>) {
        for (int chain = 0; chain < chains; ++chain) {
            products[chain] *= x;
            sums[chain] += x;
        }
    }
    [[maybe_unused]] volatile Register<T> result;
    for (int chain = 0; chain < chains; ++chain) result = products[chain] + sums[chain];
}

#define BENCH_MULTIPLY(T, single) \
    template void multiplyInLanes<T, single>(int, Planes<T>, Planes<T>, Planes<T>, std::ptrdiff_t);
#define BENCH_FACTORISATION(T, factorisation) \
    template void runInLanes<T, factorisation>(Task, const SystemsInLanes<T>&);
#define BENCH_LANES(T) \
    BENCH_MULTIPLY(T, SingleOperand::none) \
    BENCH_MULTIPLY(T, SingleOperand::first) \
    BENCH_MULTIPLY(T, SingleOperand::second) \
    template void determinantsInLanes(int, Planes<T>, T*, std::ptrdiff_t); \
    template void invertInLanes(int, Planes<T>, Planes<T>, std::ptrdiff_t); \
    BENCH_FACTORISATION(T, Factorisation::lu) \
    BENCH_FACTORISATION(T, Factorisation::cholesky) \
    BENCH_FACTORISATION(T, Factorisation::qr) \
    template void multiplyAndAdd<T>(std::ptrdiff_t);
BENCH_LANES(float)
BENCH_LANES(double)

} // namespace bench
