// Products of matrices beside a plain loop whose strides the compiler knows, Eigen's maps, and
// LIBXSMM's generated kernel and OpenBLAS, which get a call per matrix. The limit is the product of
// matrices that lie in lanes.
#include "eigen_maps.h"
#include "objects.h"
#include "roofline.h"

#include <cblas.h>
#include <libxsmm.h>

namespace {

using namespace bench;

enum class Shape { mama, mam, mma, tama, mata };
constexpr const char* shapeNames[] = {"Mul mama", "Mul mam", "Mul mma", "Mul tama", "Mul mata"};

constexpr SingleOperand singleOf(Shape shape) {
    if (shape == Shape::mam) return SingleOperand::second;
    if (shape == Shape::mma) return SingleOperand::first;
    return SingleOperand::none;
}

template <class T, Shape shape>
auto functionsOf() {
    if constexpr (shape == Shape::mama) return QORM_LAYOUTS(T, qormMul_mama);
    if constexpr (shape == Shape::mam) return QORM_LAYOUTS(T, qormMul_mam);
    if constexpr (shape == Shape::mma) return QORM_LAYOUTS(T, qormMul_mma);
    if constexpr (shape == Shape::tama) return QORM_LAYOUTS(T, qormMul_tama);
    if constexpr (shape == Shape::mata) return QORM_LAYOUTS(T, qormMul_mata);
}

template <class T, Shape shape>
struct Product {
    static constexpr SingleOperand single = singleOf(shape);

    int n;
    int count;
    Placement placement;
    Matrices<T> a{n, n, single == SingleOperand::first ? 1 : count, placement};
    Matrices<T> b{n, n, single == SingleOperand::second ? 1 : count, placement};
    Matrices<T> d{n, n, count, placement};

    Product(int size, int objects, Placement where) : n(size), count(objects), placement(where) {
        a.fillRandomly();
        b.fillRandomly();
    }

    bool library(int threads) const {
        const auto call = [&](const auto& first, const auto& second) {
            return callLibrary(functionsOf<T, shape>(), placement, threads, first, n, n, second, n,
                               n, d, count);
        };
        if constexpr (single == SingleOperand::first)
            return call(Single<T>{a}, b);
        else if constexpr (single == SingleOperand::second)
            return call(a, Single<T>{b});
        else
            return call(a, b);
    }
    bool lanes() const {
        multiplyInLanes<T, single>(n, a.planes(), b.planes(), d.planes(), count);
        return true;
    }
};

template <class T, int n, Shape shape, int rowStep>
void multiplyObject(const T* __restrict a, const T* __restrict b, T* __restrict d) {
    const auto x = [&](int i, int l) {
        return shape == Shape::tama ? a[l * rowStep + i] : a[i * rowStep + l];
    };
    const auto y = [&](int l, int j) {
        return shape == Shape::mata ? b[j * rowStep + l] : b[l * rowStep + j];
    };
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            T sum = x(i, 0) * y(0, j);
            for (int l = 1; l < n; ++l) sum += x(i, l) * y(l, j);
            d[i * rowStep + j] = sum;
        }
    }
}

template <class T, int n, Shape shape, int rowStep>
void multiplyMaps(const T* a, const T* b, T* d) {
    const ConstMap<T, n, rowStep> x(a), y(b);
    Map<T, n, rowStep> z(d);
    // Lazy: from 8x8 on a plain product goes the way of large matrices, 2 to 7 times slower.
    if constexpr (shape == Shape::tama)
        z.noalias() = x.transpose().lazyProduct(y);
    else if constexpr (shape == Shape::mata)
        z.noalias() = x.lazyProduct(y.transpose());
    else
        z.noalias() = x.lazyProduct(y);
}

// LIBXSMM's matrices lie column by column, which makes ours the transposed ones and exchanges the
// operands: the kernel takes b, a, d. It has none, null, for a transposed b of ours.
template <class T>
auto generatedKernel(Shape shape, int n, int rowStep) {
    const auto dispatch = ofType<T>(libxsmm_smmdispatch, libxsmm_dmmdispatch);
    const T one = 1;
    const T zero = 0;
    const int transposition = shape == Shape::tama   ? LIBXSMM_GEMM_FLAG_TRANS_B
                              : shape == Shape::mata ? LIBXSMM_GEMM_FLAG_TRANS_A
                                                     : LIBXSMM_GEMM_FLAG_NONE;
    const int flags = LIBXSMM_GEMM_FLAG_BETA_0 | transposition;
    return dispatch(n, n, n, &rowStep, &rowStep, &rowStep, &one, &zero, &flags, nullptr);
}

// What the peers do with a product of one size and placement.
template <class T, Shape shape>
struct Peers {
    using Run = bool (*)(const Product<T, shape>&);
    Run loop, maps, generated, blas;
};

template <class T, int n, Shape shape, Placement placement>
struct PeersOf {
    using Data = Product<T, shape>;
    using Array = Objects<T, n, placement>;
    static constexpr int rowStep = Array::rowStep;

    // multiply(a, b, d) on the addresses of each object.
    template <class Multiply>
    static bool objectByObject(const Data& data, const Multiply& multiply) {
        writeTo(data.d.base(), [&](T* target) {
            const Array a(data.a), b(data.b), d(data.d, target);
            const std::ptrdiff_t count = data.count;
            if constexpr (Data::single == SingleOperand::first) {
                const auto first = a.read(0);
                for (std::ptrdiff_t k = 0; k < count; ++k) multiply(first, b.read(k), d.write(k));
            } else if constexpr (Data::single == SingleOperand::second) {
                const auto second = b.read(0);
                for (std::ptrdiff_t k = 0; k < count; ++k) multiply(a.read(k), second, d.write(k));
            } else {
                for (std::ptrdiff_t k = 0; k < count; ++k)
                    multiply(a.read(k), b.read(k), d.write(k));
            }
        });
        return true;
    }

    // By tables of element addresses, objects side by side.
    static bool positionByPosition(const Data& data) {
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                const T* a[n];
                const T* b[n];
                for (int l = 0; l < n; ++l) {
                    a[l] = data.a.pointers()[shape == Shape::tama ? l * n + i : i * n + l];
                    b[l] = data.b.pointers()[shape == Shape::mata ? j * n + l : l * n + j];
                }
                T* const d = data.d.pointers()[i * n + j];
                BENCH_INDEPENDENT
                for (int k = 0; k < data.count; ++k) {
                    T sum = 0;
#pragma GCC unroll 16
                    for (int l = 0; l < n; ++l) {
                        sum += a[l][Data::single == SingleOperand::first ? 0 : k] *
                               b[l][Data::single == SingleOperand::second ? 0 : k];
                    }
                    d[k] = sum;
                }
            }
        }
        return true;
    }

    static bool loop(const Data& data) {
        if constexpr (placement == Placement::adjacent)
            return positionByPosition(data);
        else
            return objectByObject(data, [](const T* a, const T* b, T* d) {
                multiplyObject<T, n, shape, rowStep>(a, b, d);
            });
    }
    static bool maps(const Data& data) {
        return objectByObject(data, [](const T* a, const T* b, T* d) {
            multiplyMaps<T, n, shape, rowStep>(a, b, d);
        });
    }
    static bool generated(const Data& data) {
        static const auto kernel = generatedKernel<T>(shape, n, rowStep);
        return kernel &&
               objectByObject(data, [=](const T* a, const T* b, T* d) { kernel(b, a, d); });
    }
    static bool blas(const Data& data) {
        constexpr auto first = shape == Shape::tama ? CblasTrans : CblasNoTrans;
        constexpr auto second = shape == Shape::mata ? CblasTrans : CblasNoTrans;
        return objectByObject(data, [](const T* a, const T* b, T* d) {
            ofType<T>(cblas_sgemm, cblas_dgemm)(CblasRowMajor, first, second, n, n, n, T(1), a,
                                                rowStep, b, rowStep, T(0), d, rowStep);
        });
    }
};

template <class T, Shape shape>
Subject subjectOf(int n, Placement placement, Memory memory, int count) {
    constexpr int arrays = singleOf(shape) == SingleOperand::none ? 3 : 2;
    return {
        shapeNames[static_cast<int>(shape)], nameOf(placement),    memory, nameOfType<T>, n, count,
        arrays * n * n * double{sizeof(T)},  n * n * (2.0 * n - 1)};
}

template <class T, Shape shape>
void row(Session& session, int n, Placement placement, Memory memory,
         const Peers<T, shape>& peers) {
    const int count = countFor(memory, subjectOf<T, shape>(n, placement, memory, 0).bytes);
    const Subject subject = subjectOf<T, shape>(n, placement, memory, count);
    if (!session.wants(subject)) return;
    const Product<T, shape> product(n, count, placement);
    std::vector<Contender> contenders = {
        {"qorm", Role::library, [&] { return product.library(1); }},
        {"loop", Role::peer, [&] { return peers.loop(product); }},
        {"Eigen", Role::peer, [&] { return peers.maps(product); }}};
    if (generatedKernel<T>(shape, n, n)) {
        contenders.push_back({"LIBXSMM", Role::peer, [&] { return peers.generated(product); }});
    }
    if (n >= 8) contenders.push_back({"OpenBLAS", Role::peer, [&] { return peers.blas(product); }});
    if (memory == Memory::cached) {
        const auto inLanes = std::make_shared<Product<T, shape>>(n, count, Placement::adjacent);
        contenders.push_back({"lanes", Role::limit, [=] { return inLanes->lanes(); }});
    }
    append(contenders, roofline<T>(subject, 1));
    session.measure(subject, contenders, [&] { return product.d.takeSquares(); });
}

template <Shape shape, Placement placement>
void rows(Session& session, Memory memory) {
    forSizes<3, 4, 5, 6, 8, 16>([&]<class T, int n>() {
        using Own = PeersOf<T, n, shape, placement>;
        row<T, shape>(session, n, placement, memory,
                      {Own::loop, Own::maps, Own::generated, Own::blas});
    });
}

template <Shape shape>
void somePlacements(Session& session, Memory memory) {
    rows<shape, Placement::packed>(session, memory);
    rows<shape, Placement::adjacent>(session, memory);
}
template <Shape shape>
void allPlacements(Session& session, Memory memory) {
    somePlacements<shape>(session, memory);
    rows<shape, Placement::padded>(session, memory);
    rows<shape, Placement::scattered>(session, memory);
    rows<shape, Placement::list>(session, memory);
}

const Registration
    products({"products",
              {"qorm", "loop", "Eigen", "LIBXSMM", "OpenBLAS", "lanes", "memcpy", "peak"},
              [](Session& session) {
                  for (const Memory memory : {Memory::cached, Memory::streamed}) {
                      allPlacements<Shape::mama>(session, memory);
                      somePlacements<Shape::mam>(session, memory);
                      somePlacements<Shape::mma>(session, memory);
                      somePlacements<Shape::tama>(session, memory);
                      somePlacements<Shape::mata>(session, memory);
                  }
              }});

const Registration productsOnThreads(
    {"products on threads", {"2 threads", "1 thread", "memcpy", "peak"}, [](Session& session) {
         forSizes<3, 6, 16>([&]<class T, int n>() {
             const auto measure = [&](Placement placement, Memory memory, int count) {
                 const Subject subject = subjectOf<T, Shape::mam>(n, placement, memory, count);
                 if (!session.wants(subject)) return;
                 const Product<T, Shape::mam> product(n, count, placement);
                 std::vector<Contender> contenders =
                     twoThreadsAndOne([&](int threads) { return product.library(threads); });
                 append(contenders, roofline<T>(subject, 2));
                 session.measure(subject, contenders, [&] { return product.d.takeSquares(); });
             };
             const auto sweep = [&](Placement placement, int threshold) {
                 sweepCount(threshold - n * n, 2 * n * n,
                            [&](int count) { measure(placement, Memory::cached, count); });
             };
             sweep(Placement::packed, 36865);
             sweep(Placement::adjacent, 9217);
             sweep(Placement::list, 18433);
             const double bytes = subjectOf<T, Shape::mam>(n, {}, {}, 0).bytes;
             measure(Placement::packed, Memory::streamed, countFor(Memory::streamed, bytes));
         });
     }});

} // namespace
