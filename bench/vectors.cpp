// Operations on vectors. Arrays of short ones beside a plain loop whose strides the compiler knows
// and Eigen's maps; the limit is the same loop on vectors that lie in lanes. Long ones get a call
// each, beside plain loops, Eigen's maps and OpenBLAS.
#include "eigen_maps.h"
#include "objects.h"
#include "roofline.h"

#include <Eigen/Geometry>
#include <cblas.h>
#include <cmath>

namespace {

using namespace bench;

enum class Shape { dotVava, dotVav, norm, cross };
constexpr const char* shapeNames[] = {"DotProduct vava", "DotProduct vav", "L2Norm va",
                                      "CrossProduct vava"};

// The first row of an array as the single operand of a call.
template <class T>
struct SingleVector {
    static constexpr std::int32_t step = sizeof(T);
    const Matrices<T>& row;

    auto strides() const { return std::tuple(row.base(), step); }
    auto pointerPerElement() const { return Single<T>{row}.pointerPerElement(); }
    auto pointerPerObject() const { return std::tuple(row.pointers()[0], step); }
};

template <class T>
struct Data {
    Shape shape;
    int n;
    int count;
    Placement placement;
    Matrices<T> a{1, n, count, placement};
    Matrices<T> b{1, n, shape == Shape::dotVav ? 1 : count, placement};
    Matrices<T> d = shape == Shape::cross ? Matrices<T>(1, n, count, placement)
                                          : Matrices<T>(1, 1, count, Placement::adjacent);

    Data(Shape operation, int length, int objects, Placement where)
        : shape(operation), n(length), count(objects), placement(where) {
        a.fillRandomly();
        b.fillRandomly();
    }

    bool library() const {
        const Vectors<T> x{a}, y{b};
        switch (shape) {
        case Shape::dotVava:
            return callLibrary(QORM_LAYOUTS(T, qormDotProduct_vava), placement, 1, x, y, d.base(),
                               n, count);
        case Shape::dotVav:
            return callLibrary(QORM_LAYOUTS(T, qormDotProduct_vav), placement, 1, x,
                               SingleVector<T>{b}, d.base(), n, count);
        case Shape::norm:
            return callLibrary(QORM_LAYOUTS(T, qormL2Norm_va), placement, 1, x, d.base(), n, count);
        case Shape::cross:
            break;
        }
        return callLibrary(QORM_LAYOUTS(T, qormCrossProduct_vava), placement, 1, x, y,
                           Vectors<T>{d}, count);
    }
};

template <class T, int n, Shape shape, Placement placement>
bool runLoop(const Data<T>& data) {
    using Array = Elements<T, 1, placement, n>;
    writeTo(data.d.base(), [&](T* target) {
        const Array a(data.a), b(data.b);
        const std::ptrdiff_t count = data.count;
        if constexpr (shape == Shape::cross) {
            const Array d(data.d, target);
            BENCH_INDEPENDENT
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                const T x = a(k, 0, 0), y = a(k, 0, 1), z = a(k, 0, 2);
                const T u = b(k, 0, 0), v = b(k, 0, 1), w = b(k, 0, 2);
                d(k, 0, 0) = y * w - z * v;
                d(k, 0, 1) = z * u - x * w;
                d(k, 0, 2) = x * v - y * u;
            }
        } else {
            BENCH_INDEPENDENT
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                T sum = 0;
#pragma GCC unroll 16
                for (int i = 0; i < n; ++i) {
                    const T x = a(k, 0, i);
                    sum += x * (shape == Shape::norm     ? x
                                : shape == Shape::dotVav ? b(0, 0, i)
                                                         : b(k, 0, i));
                }
                target[k] = shape == Shape::norm ? std::sqrt(sum) : sum;
            }
        }
    });
    return true;
}

template <class T, int n, Shape shape, Placement placement>
bool runMaps(const Data<T>& data) {
    using Array = Objects<T, 1, placement, n>;
    using Vector = ConstMap<T, 1, n, n>;
    writeTo(data.d.base(), [&](T* target) {
        const Array a(data.a), b(data.b);
        const std::ptrdiff_t count = data.count;
        for (std::ptrdiff_t k = 0; k < count; ++k) {
            const Vector x(a.read(k));
            if constexpr (shape == Shape::norm) {
                target[k] = x.norm();
            } else {
                const Vector y(b.read(shape == Shape::dotVav ? 0 : k));
                if constexpr (shape == Shape::cross)
                    Eigen::Map<EigenMatrix<T, 1, n>>(Array(data.d, target).write(k)) = x.cross(y);
                else
                    target[k] = x.dot(y);
            }
        }
    });
    return true;
}

template <class T>
using Run = bool (*)(const Data<T>&);

template <class T>
void row(Session& session, Shape shape, int n, Placement placement, Memory memory, Run<T> loop,
         Run<T> maps, Run<T> lanes) {
    const bool isCross = shape == Shape::cross;
    const int elements = isCross ? 3 * n : shape == Shape::dotVava ? 2 * n + 1 : n + 1;
    const double bytes = elements * double{sizeof(T)};
    const double operations = isCross ? 9 : 2 * n - 1;
    const int count = countFor(memory, bytes);
    const Subject subject = {shapeNames[static_cast<int>(shape)],
                             nameOf(placement),
                             memory,
                             nameOfType<T>,
                             n,
                             count,
                             bytes,
                             operations};
    if (!session.wants(subject)) return;
    const Data<T> data(shape, n, count, placement);
    std::vector<Contender> contenders = {{"qorm", Role::library, [&] { return data.library(); }},
                                         {"loop", Role::peer, [&] { return loop(data); }}};
    if (maps) contenders.push_back({"Eigen", Role::peer, [&] { return maps(data); }});
    if (memory == Memory::cached) {
        const auto inLanes = std::make_shared<Data<T>>(shape, n, count, Placement::adjacent);
        contenders.push_back({"lanes", Role::limit, [=] { return lanes(*inLanes); }});
    }
    append(contenders, roofline<T>(subject, 1));
    session.measure(subject, contenders, [&] { return data.d.takeSquares(); });
}

template <Shape shape, Placement placement, int... lengths>
void rows(Session& session, Memory memory) {
    forSizes<lengths...>([&]<class T, int n>() {
        Run<T> maps = nullptr;
        if constexpr (placement != Placement::adjacent) maps = runMaps<T, n, shape, placement>;
        row<T>(session, shape, n, placement, memory, runLoop<T, n, shape, placement>, maps,
               runLoop<T, n, shape, Placement::adjacent>);
    });
}

template <Shape shape, int... lengths>
void placements(Session& session, Memory memory) {
    rows<shape, Placement::packed, lengths...>(session, memory);
    rows<shape, Placement::padded, lengths...>(session, memory);
    rows<shape, Placement::adjacent, lengths...>(session, memory);
    rows<shape, Placement::list, lengths...>(session, memory);
}

const Registration
    vectors({"vectors", {"qorm", "loop", "Eigen", "lanes", "memcpy", "peak"}, [](Session& session) {
                 for (const Memory memory : {Memory::cached, Memory::streamed}) {
                     placements<Shape::dotVava, 3, 4>(session, memory);
                     placements<Shape::dotVav, 3, 4>(session, memory);
                     placements<Shape::norm, 3, 4>(session, memory);
                     placements<Shape::cross, 3>(session, memory);
                 }
             }});

enum class Operation { dot, norm, saxpy, saxpyInPlace, lComb, add, scale };
constexpr const char* operationNames[] = {
    "DotProduct vv", "L2Norm v", "Saxpy vv", "Saxpy vv in place", "LComb vv", "Add vv", "Mul vc"};
constexpr int operandsOf[] = {2, 1, 3, 3, 3, 3, 2};
constexpr int operationsPerElement[] = {2, 2, 2, 2, 3, 1, 1};

constexpr bool isReduction(Operation operation) {
    return operation == Operation::dot || operation == Operation::norm;
}

template <class T, Operation operation>
struct Calls {
    static constexpr T p = T(1.5);
    static constexpr T q = T(-0.75);

    static bool library(const T* x, const T* y, T* d, int n) {
        constexpr std::int32_t step = sizeof(T);
        const auto call = [](auto floats, auto doubles, auto... arguments) {
            return ofType<T>(floats, doubles)(arguments...) == qorStatusOk;
        };
        switch (operation) {
        case Operation::dot:
            return call(qormDotProduct_vv_32f, qormDotProduct_vv_64f, x, step, y, step, d, n);
        case Operation::norm:
            return call(qormL2Norm_v_32f, qormL2Norm_v_64f, x, step, d, n);
        case Operation::lComb:
            return call(qormLComb_vv_32f, qormLComb_vv_64f, x, step, p, y, step, q, d, step, n);
        case Operation::add:
            return call(qormAdd_vv_32f, qormAdd_vv_64f, x, step, y, step, d, step, n);
        case Operation::scale:
            return call(qormMul_vc_32f, qormMul_vc_64f, x, step, p, d, step, n);
        case Operation::saxpy:
        case Operation::saxpyInPlace:
            break;
        }
        return call(qormSaxpy_vv_32f, qormSaxpy_vv_64f, x, step, p, y, step, d, step, n);
    }

    // Of elements or of Eigen's maps.
    template <class Operand>
    static auto combine(const Operand& x, [[maybe_unused]] const Operand& y) {
        if constexpr (operation == Operation::lComb)
            return p * x + q * y;
        else if constexpr (operation == Operation::add)
            return x + y;
        else if constexpr (operation == Operation::scale)
            return p * x;
        else
            return p * x + y;
    }

    static bool loop(const T* x, const T* y, T* d, int n) {
        if constexpr (isReduction(operation)) {
            T sum = 0;
#pragma omp simd reduction(+ : sum)
            for (int i = 0; i < n; ++i) sum += x[i] * (operation == Operation::norm ? x[i] : y[i]);
            *d = operation == Operation::norm ? std::sqrt(sum) : sum;
        } else {
            BENCH_INDEPENDENT
            for (int i = 0; i < n; ++i) d[i] = combine(x[i], y[i]);
        }
        return true;
    }

    static bool maps(const T* x, const T* y, T* d, int n) {
        using Vector = Eigen::VectorX<T>;
        const Eigen::Map<const Vector> u(x, n), v(y, n);
        if constexpr (operation == Operation::dot)
            *d = u.dot(v);
        else if constexpr (operation == Operation::norm)
            *d = u.norm();
        else
            Eigen::Map<Vector>(d, n) = combine(u, v);
        return true;
    }

    static constexpr bool isInBlas = isReduction(operation) || operation == Operation::saxpyInPlace;
    static bool blas(const T* x, const T* y, T* d, int n) {
        if constexpr (operation == Operation::dot)
            *d = ofType<T>(cblas_sdot, cblas_ddot)(n, x, 1, y, 1);
        else if constexpr (operation == Operation::norm)
            *d = ofType<T>(cblas_snrm2, cblas_dnrm2)(n, x, 1);
        else
            ofType<T>(cblas_saxpy, cblas_daxpy)(n, p, x, 1, d, 1);
        return true;
    }
};

// Of a reduction: nothing to speak of is written.
Contender reading(const Subject& subject) {
    typedef double Register __attribute__((vector_size(64)));
    struct alignas(64) Block {
        Register registers[8];
    };
    const auto blocks = static_cast<std::size_t>(subject.bytes * subject.count / sizeof(Block));
    return {"read", Role::bound, [all = std::make_shared<std::vector<Block>>(blocks)] {
                Block sums = {};
                for (const Block& block : *all) {
#pragma GCC unroll 8
                    for (int c = 0; c < 8; ++c) sums.registers[c] += block.registers[c];
                }
                [[maybe_unused]] volatile Register result;
                for (const Register& sum : sums.registers) result = sum;
                return true;
            }};
}

template <class T, Operation operation>
void longRow(Session& session, int n, Memory memory) {
    using Own = Calls<T, operation>;
    constexpr int index = static_cast<int>(operation);
    const double bytes = double{sizeof(T)} * operandsOf[index] * n;
    const int count = memory == Memory::cached ? std::max(1, countFor(memory, bytes)) : 1;
    const double operations = double{1} * operationsPerElement[index] * n;
    const Subject subject = {
        operationNames[index], "packed", memory, nameOfType<T>, n, count, bytes, operations};
    if (!session.wants(subject)) return;
    // A list has no table of elements, and its objects are packed.
    const Matrices<T> x(1, n, count, Placement::list);
    const Matrices<T> y(1, n, count, Placement::list);
    const int results = isReduction(operation) ? 1 : n;
    const Matrices<T> d(1, results, count, Placement::list);
    // Sums of so many elements agree only where none is rounded.
    for (const Matrices<T>* operand : {&x, &y}) {
        operand->forEach([](T& element) { element = std::copysign(T(1), randomValue<T>()); });
    }
    const T* const second = (operation == Operation::saxpyInPlace ? d : y).base();
    const auto contender = [&](const char* name, Role role, auto call) {
        return Contender{name, role, [&x, &d, second, n, count, results, call] {
                             bool isGood = true;
                             for (std::ptrdiff_t k = 0; k < count; ++k) {
                                 isGood &= call(x.base() + k * n, second + k * n,
                                                d.base() + k * results, n);
                             }
                             return isGood;
                         }};
    };
    std::vector<Contender> contenders = {contender("qorm", Role::library, Own::library),
                                         contender("loop", Role::peer, Own::loop),
                                         contender("Eigen", Role::peer, Own::maps)};
    if (Own::isInBlas) contenders.push_back(contender("OpenBLAS", Role::peer, Own::blas));
    std::vector<Contender> bounds = roofline<T>(subject, 1);
    if (isReduction(operation)) bounds.front() = reading(subject);
    append(contenders, bounds);
    session.measure(subject, contenders, [&] { return d.takeSquares(); });
}

template <Operation... operations>
void longRows(Session& session, int n, Memory memory) {
    (longRow<float, operations>(session, n, memory), ...);
    (longRow<double, operations>(session, n, memory), ...);
}

const Registration longVectors(
    {"long vectors",
     {"qorm", "loop", "Eigen", "OpenBLAS", "read", "memcpy", "peak"},
     [](Session& session) {
         openblas_set_num_threads(1);
         const auto all = [&](int n, Memory memory) {
             longRows<Operation::dot, Operation::norm, Operation::saxpy, Operation::saxpyInPlace,
                      Operation::lComb, Operation::add, Operation::scale>(session, n, memory);
         };
         for (const int n : {100, 1000, 10000}) all(n, Memory::cached);
         all(1 << 24, Memory::streamed);
     }});

} // namespace
