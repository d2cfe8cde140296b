// Products of matrices and vectors beside a plain loop whose strides the compiler knows and Eigen's
// maps; the limit is the same loop on matrices and vectors that lie in lanes. Of packed vectors and
// one matrix OpenBLAS makes one product of matrices. Large matrices get a call each.
#include "eigen_maps.h"
#include "objects.h"
#include "roofline.h"

#include <cblas.h>

namespace {

using namespace bench;

enum class Shape { mva, mava, gaxpy };
constexpr const char* shapeNames[] = {"Mul mva", "Mul mava", "Gaxpy mva"};

template <class T>
struct Product {
    Shape shape;
    int rows;
    int columns;
    int count;
    Placement placement;
    Matrices<T> a{rows, columns, shape == Shape::mava ? count : 1, placement};
    Matrices<T> x{1, columns, count, placement};
    Matrices<T> y{1, rows, shape == Shape::gaxpy ? count : 1, placement};
    Matrices<T> d{1, rows, count, placement};

    Product(Shape which, int height, int width, int objects, Placement where)
        : shape(which), rows(height), columns(width), count(objects), placement(where) {
        a.fillRandomly();
        x.fillRandomly();
        y.fillRandomly();
    }

    bool library() const {
        const Vectors<T> u{x}, v{y}, w{d};
        switch (shape) {
        case Shape::mva:
            return callLibrary(QORM_LAYOUTS(T, qormMul_mva), placement, 1, Single<T>{a}, columns,
                               rows, u, columns, w, count);
        case Shape::mava:
            return callLibrary(QORM_LAYOUTS(T, qormMul_mava), placement, 1, a, columns, rows, u,
                               columns, w, count);
        case Shape::gaxpy:
            break;
        }
        return callLibrary(QORM_LAYOUTS(T, qormGaxpy_mva), placement, 1, Single<T>{a}, columns,
                           rows, u, columns, v, rows, w, count);
    }
    // d = x a^T for all vectors at once, packed.
    bool blas() const {
        ofType<T>(cblas_sgemm, cblas_dgemm)(CblasRowMajor, CblasNoTrans, CblasTrans, count, rows,
                                            columns, T(1), x.base(), columns, a.base(), columns,
                                            T(0), d.base(), rows);
        return true;
    }
};

template <class T, int rows, int columns, Shape shape>
bool loopInLanes(const Product<T>& product) {
    writeTo(product.d.base(), [&](T* target) {
        const Elements<T, rows, Placement::adjacent, columns> a(product.a);
        const Elements<T, 1, Placement::adjacent, columns> x(product.x);
        const Elements<T, 1, Placement::adjacent, rows> y(product.y), d(product.d, target);
        const std::ptrdiff_t count = product.count;
        T single[rows][columns];
        for (int i = 0; i < rows; ++i) {
            for (int l = 0; l < columns; ++l) single[i][l] = a(0, i, l);
        }
        BENCH_INDEPENDENT
        for (std::ptrdiff_t k = 0; k < count; ++k) {
#pragma GCC unroll 16
            for (int i = 0; i < rows; ++i) {
                T sum = 0;
#pragma GCC unroll 16
                for (int l = 0; l < columns; ++l) {
                    sum += (shape == Shape::mava ? a(k, i, l) : single[i][l]) * x(k, 0, l);
                }
                d(k, 0, i) = shape == Shape::gaxpy ? sum + y(k, 0, i) : sum;
            }
        }
    });
    return true;
}

template <class T, int rows, int columns, Shape shape, Placement placement>
struct PeersOf {
    static constexpr bool isSingle = shape != Shape::mava;
    static constexpr int rowStep = isSingle ? columns : columns + gapOf(placement);

    // multiply(a, x, y, d) on the addresses of each object. Of a single matrix there is a copy,
    // which nothing that is written can change.
    template <class Multiply>
    static bool objectByObject(const Product<T>& product, const Multiply& multiply) {
        writeTo(product.d.base(), [&](T* target) {
            const Objects<T, rows, placement, columns> a(product.a);
            const Objects<T, 1, placement, columns> x(product.x);
            const Objects<T, 1, placement, rows> y(product.y), d(product.d, target);
            const std::ptrdiff_t count = product.count;
            if constexpr (isSingle) {
                T single[rows * columns];
                for (int p = 0; p < rows * columns; ++p) {
                    single[p] = product.a(0, p / columns, p % columns);
                }
                for (std::ptrdiff_t k = 0; k < count; ++k) {
                    multiply(single, x.read(k), y.read(shape == Shape::gaxpy ? k : 0), d.write(k));
                }
            } else {
                for (std::ptrdiff_t k = 0; k < count; ++k) {
                    multiply(a.read(k), x.read(k), y.read(0), d.write(k));
                }
            }
        });
        return true;
    }

    static bool loop(const Product<T>& product) {
        return objectByObject(product, [](const T* a, const T* x, const T* y, T* d) {
            for (int i = 0; i < rows; ++i) {
                T sum = a[i * rowStep] * x[0];
                for (int l = 1; l < columns; ++l) sum += a[i * rowStep + l] * x[l];
                d[i] = shape == Shape::gaxpy ? sum + y[i] : sum;
            }
        });
    }
    static bool maps(const Product<T>& product) {
        return objectByObject(product, [](const T* a, const T* x, const T* y, T* d) {
            using Vector = Eigen::Matrix<T, rows, 1>;
            Eigen::Map<Vector> w(d);
            w.noalias() = ConstMap<T, rows, rowStep, columns>(a).lazyProduct(
                Eigen::Map<const Eigen::Matrix<T, columns, 1>>(x));
            if constexpr (shape == Shape::gaxpy) w += Eigen::Map<const Vector>(y);
        });
    }
};

template <class T>
using Run = bool (*)(const Product<T>&);

template <class T>
void row(Session& session, Shape shape, int rows, int columns, Placement placement, Memory memory,
         Run<T> loop, Run<T> maps, Run<T> lanes) {
    const int matrix = shape == Shape::mava ? rows * columns : 0;
    const int added = shape == Shape::gaxpy ? rows : 0;
    const double bytes = (matrix + columns + added + rows) * double{sizeof(T)};
    const double operations = rows * (2.0 * columns - 1) + added;
    const int count = countFor(memory, bytes);
    std::string name = shapeNames[static_cast<int>(shape)];
    if (rows != columns) {
        name.append(" ").append(std::to_string(rows)).append("x").append(std::to_string(columns));
    }
    const Subject subject = {name,  nameOf(placement), memory, nameOfType<T>, rows, count,
                             bytes, operations};
    if (!session.wants(subject)) return;
    const Product<T> product(shape, rows, columns, count, placement);
    std::vector<Contender> contenders = {{"qorm", Role::library, [&] { return product.library(); }},
                                         {"loop", Role::peer, [&] { return loop(product); }}};
    if (maps) {
        contenders.push_back({"Eigen", Role::peer, [&] { return maps(product); }});
    }
    if (shape == Shape::mva && placement == Placement::packed) {
        contenders.push_back({"OpenBLAS", Role::peer, [&] { return product.blas(); }});
    }
    if (memory == Memory::cached) {
        const auto inLanes =
            std::make_shared<Product<T>>(shape, rows, columns, count, Placement::adjacent);
        contenders.push_back({"lanes", Role::limit, [=] { return lanes(*inLanes); }});
    }
    append(contenders, roofline<T>(subject, 1));
    session.measure(subject, contenders, [&] { return product.d.takeSquares(); });
}

template <Shape shape, Placement placement, class T, int height, int width>
void row(Session& session, Memory memory) {
    const Run<T> lanes = loopInLanes<T, height, width, shape>;
    if constexpr (placement == Placement::adjacent) {
        row<T>(session, shape, height, width, placement, memory, lanes, nullptr, lanes);
    } else {
        using Own = PeersOf<T, height, width, shape, placement>;
        row<T>(session, shape, height, width, placement, memory, Own::loop, Own::maps, lanes);
    }
}

template <Shape shape, Placement placement>
void rows(Session& session, Memory memory) {
    const auto square = [&]<class T, int n>() { row<shape, placement, T, n, n>(session, memory); };
    if constexpr (shape == Shape::gaxpy)
        forSizes<3, 6>(square);
    else
        forSizes<3, 4, 5, 6, 8>(square);
    if constexpr (shape == Shape::mava) {
        forSizes<6>([&]<class T, int n>() { row<shape, placement, T, n, 3>(session, memory); });
    }
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
    rows<shape, Placement::list>(session, memory);
}

const Registration products({"matrix-vector products",
                             {"qorm", "loop", "Eigen", "OpenBLAS", "lanes", "memcpy", "peak"},
                             [](Session& session) {
                                 openblas_set_num_threads(1);
                                 for (const Memory memory : {Memory::cached, Memory::streamed}) {
                                     allPlacements<Shape::mva>(session, memory);
                                     allPlacements<Shape::mava>(session, memory);
                                     somePlacements<Shape::gaxpy>(session, memory);
                                 }
                             }});

template <class T>
void largeRow(Session& session, int n) {
    const double bytes = double{sizeof(T)} * n * (n + 2);
    const int count = std::max(1, countFor(Memory::cached, bytes));
    const double operations = n * (2.0 * n - 1);
    const Subject subject = {"Mul mv", "packed", Memory::cached, nameOfType<T>,
                             n,        count,    bytes,          operations};
    if (!session.wants(subject)) return;
    const Product<T> product(Shape::mava, n, n, count, Placement::packed);
    // multiply(a, x, d) on the addresses of each object.
    const auto contender = [&](const char* name, Role role, auto multiply) {
        return Contender{name, role, [&product, n, multiply] {
                             bool isGood = true;
                             for (std::ptrdiff_t k = 0; k < product.count; ++k) {
                                 const std::ptrdiff_t vector = k * n;
                                 isGood &=
                                     multiply(product.a.base() + vector * n,
                                              product.x.base() + vector, product.d.base() + vector);
                             }
                             return isGood;
                         }};
    };
    const auto library = [n](const T* a, const T* x, T* d) {
        constexpr std::int32_t step = sizeof(T);
        return ofType<T>(qormMul_mv_32f, qormMul_mv_64f)(a, n * step, step, n, n, x, step, n, d,
                                                         step) == qorStatusOk;
    };
    const auto loop = [n](const T* a, const T* x, T* d) {
        for (int i = 0; i < n; ++i) {
            T sum = 0;
#pragma omp simd reduction(+ : sum)
            for (int l = 0; l < n; ++l) sum += a[i * n + l] * x[l];
            d[i] = sum;
        }
        return true;
    };
    const auto maps = [n](const T* a, const T* x, T* d) {
        using Matrix = EigenMatrix<T, Eigen::Dynamic, Eigen::Dynamic>;
        Eigen::Map<Eigen::VectorX<T>>(d, n).noalias() =
            Eigen::Map<const Matrix>(a, n, n) * Eigen::Map<const Eigen::VectorX<T>>(x, n);
        return true;
    };
    const auto blas = [n](const T* a, const T* x, T* d) {
        ofType<T>(cblas_sgemv, cblas_dgemv)(CblasRowMajor, CblasNoTrans, n, n, T(1), a, n, x, 1,
                                            T(0), d, 1);
        return true;
    };
    std::vector<Contender> contenders = {
        contender("qorm", Role::library, library), contender("loop", Role::peer, loop),
        contender("Eigen", Role::peer, maps), contender("OpenBLAS", Role::peer, blas)};
    append(contenders, roofline<T>(subject, 1));
    session.measure(subject, contenders, [&] { return product.d.takeSquares(); });
}

const Registration largeProducts({"large matrix-vector products",
                                  {"qorm", "loop", "Eigen", "OpenBLAS", "memcpy", "peak"},
                                  [](Session& session) {
                                      openblas_set_num_threads(1);
                                      for (const int n : {64, 512}) {
                                          largeRow<float>(session, n);
                                          largeRow<double>(session, n);
                                      }
                                  }});

} // namespace
