// Sums of matrices beside a plain loop whose strides the compiler knows and Eigen's maps. The limit
// is a sum of plain arrays with as many bytes as the row.
#include "eigen_maps.h"
#include "objects.h"
#include "roofline.h"

namespace {

using namespace bench;

enum class Shape { mama, mam, tama };
constexpr const char* shapeNames[] = {"Add mama", "Add mam", "Add tama"};

template <class T, Shape shape>
auto functionsOf() {
    if constexpr (shape == Shape::mama) return QORM_LAYOUTS(T, qormAdd_mama);
    if constexpr (shape == Shape::mam) return QORM_LAYOUTS(T, qormAdd_mam);
    if constexpr (shape == Shape::tama) return QORM_LAYOUTS(T, qormAdd_tama);
}

template <class T>
void addRun(const T* __restrict a, const T* __restrict b, T* __restrict d, std::ptrdiff_t count) {
    for (std::ptrdiff_t i = 0; i < count; ++i) d[i] = a[i] + b[i];
}

// A sum of two plain arrays with as many bytes as the subject.
template <class T>
Contender triad(const Subject& subject, int threads) {
    const auto third = static_cast<std::ptrdiff_t>(subject.bytes * subject.count / sizeof(T) / 3);
    const std::shared_ptr<T[]> data(new T[static_cast<std::size_t>(3 * third)]());
    return {"triad", Role::limit, [=] {
                return inShares(threads, third, [&](std::ptrdiff_t first, std::ptrdiff_t count) {
                    T* const d = data.get() + first;
                    addRun(d + third, d + 2 * third, d, count);
                });
            }};
}

template <class T, int n, Shape shape, int rowStep>
void addObject(const T* __restrict a, const T* __restrict b, T* __restrict d) {
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            const T x = shape == Shape::tama ? a[j * rowStep + i] : a[i * rowStep + j];
            d[i * rowStep + j] = x + b[i * rowStep + j];
        }
    }
}

template <class T, int n, Shape shape, int rowStep>
void addMaps(const T* a, const T* b, T* d) {
    const ConstMap<T, n, rowStep> x(a), y(b);
    Map<T, n, rowStep> z(d);
    if constexpr (shape == Shape::tama)
        z = x.transpose() + y;
    else
        z = x + y;
}

template <class T, int n, Shape shape, Placement placement>
struct Sum {
    static constexpr int rowStep = n + gapOf(placement);
    static constexpr int objectStep = rowStep * rowStep;
    static constexpr bool hasArrayOfSecond = shape != Shape::mam;

    const Matrices<T>& a;
    const Matrices<T>& b;
    const Matrices<T>& d;
    std::ptrdiff_t count;

    // add(a, b, d) on the addresses of each object.
    template <class Add>
    bool objectByObject(const Add& add) const {
        writeTo(d.base(), [&](T* target) {
            const Objects<T, n, placement> x(a), y(b), z(d, target);
            const std::ptrdiff_t all = count;
            for (std::ptrdiff_t k = 0; k < all; ++k) {
                add(x.read(k), y.read(hasArrayOfSecond ? k : 0), z.write(k));
            }
        });
        return true;
    }

    // By tables of element addresses.
    bool positionByPosition() const {
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                const T* const x = a.pointers()[shape == Shape::tama ? j * n + i : i * n + j];
                const T* const y = b.pointers()[i * n + j];
                T* const z = d.pointers()[i * n + j];
                if constexpr (!hasArrayOfSecond) {
                    for (std::ptrdiff_t k = 0; k < count; ++k) z[k] = x[k] + *y;
                } else {
                    addRun(x, y, z, count);
                }
            }
        }
        return true;
    }
    bool elementByElement() const {
        for (std::ptrdiff_t k = 0; k < count; ++k) {
            const std::ptrdiff_t second = hasArrayOfSecond ? k : 0;
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) {
                    const T* const x = a.pointers()[shape == Shape::tama ? j * n + i : i * n + j];
                    const T* const y = b.pointers()[i * n + j];
                    d.pointers()[i * n + j][k * objectStep] =
                        x[k * objectStep] + y[second * objectStep];
                }
            }
        }
        return true;
    }

    bool loop() const {
        if constexpr (placement == Placement::adjacent)
            return positionByPosition();
        else if constexpr (placement == Placement::scattered)
            return elementByElement();
        else
            return objectByObject(
                [](const T* x, const T* y, T* z) { addObject<T, n, shape, rowStep>(x, y, z); });
    }
    bool maps() const {
        return objectByObject(
            [](const T* x, const T* y, T* z) { addMaps<T, n, shape, rowStep>(x, y, z); });
    }

    bool library(int threads) const {
        const auto call = [&](const auto& second) {
            return callLibrary(functionsOf<T, shape>(), placement, threads, a, second, d, n, n,
                               static_cast<std::int32_t>(count));
        };
        if constexpr (hasArrayOfSecond)
            return call(b);
        else
            return call(Single<T>{b});
    }
};

constexpr double bytesPerObject(Shape shape, int elements, std::size_t elementSize) {
    return (shape == Shape::mam ? 2.0 : 3.0) * elements * static_cast<double>(elementSize);
}

// contendersOf(subject, sum)
template <class T, int n, Shape shape, Placement placement, class ContendersOf>
void row(Session& session, Memory memory, int count, const ContendersOf& contendersOf) {
    const Subject subject = {shapeNames[static_cast<int>(shape)],
                             nameOf(placement),
                             memory,
                             nameOfType<T>,
                             n,
                             count,
                             bytesPerObject(shape, n * n, sizeof(T)),
                             0};
    if (!session.wants(subject)) return;
    const Matrices<T> a(n, n, count, placement);
    const Matrices<T> b(n, n, shape == Shape::mam ? 1 : count, placement);
    const Matrices<T> d(n, n, count, placement);
    a.fillRandomly();
    b.fillRandomly();
    const Sum<T, n, shape, placement> sum = {a, b, d, count};
    session.measure(subject, contendersOf(subject, sum), [&] { return d.takeSquares(); });
}

template <Shape shape, Placement placement>
void rows(Session& session, Memory memory) {
    forSizes<3, 4, 5, 6, 8>([&]<class T, int n>() {
        const int count = countFor(memory, bytesPerObject(shape, n * n, sizeof(T)));
        row<T, n, shape, placement>(
            session, memory, count, [](const Subject& subject, const auto& sum) {
                std::vector<Contender> contenders = roofline<T>(subject, 1);
                contenders.push_back(triad<T>(subject, 1));
                contenders.push_back({"qorm", Role::library, [&] { return sum.library(1); }});
                contenders.push_back({"loop", Role::peer, [&] { return sum.loop(); }});
                if constexpr (placement != Placement::adjacent &&
                              placement != Placement::scattered) {
                    contenders.push_back({"Eigen", Role::peer, [&] { return sum.maps(); }});
                }
                return contenders;
            });
    });
}

template <Shape shape>
void rows(Session& session, Memory memory) {
    rows<shape, Placement::packed>(session, memory);
    rows<shape, Placement::padded>(session, memory);
    rows<shape, Placement::adjacent>(session, memory);
    rows<shape, Placement::scattered>(session, memory);
    rows<shape, Placement::list>(session, memory);
}

const Registration
    sums({"sums", {"qorm", "loop", "Eigen", "triad", "memcpy"}, [](Session& session) {
              for (const Memory memory : {Memory::cached, Memory::streamed}) {
                  rows<Shape::mama>(session, memory);
                  rows<Shape::mam>(session, memory);
                  rows<Shape::tama>(session, memory);
              }
          }});

const Registration sumsOnThreads(
    {"sums on threads", {"2 threads", "1 thread", "triad", "memcpy"}, [](Session& session) {
         forSizes<3, 6>([&]<class T, int n>() {
             const auto measure = [&](Memory memory, int count) {
                 row<T, n, Shape::mama, Placement::packed>(
                     session, memory, count, [](const Subject& subject, const auto& sum) {
                         std::vector<Contender> contenders = roofline<T>(subject, 2);
                         contenders.push_back(triad<T>(subject, 2));
                         append(contenders, twoThreadsAndOne([&sum](int threads) {
                                    return sum.library(threads);
                                }));
                         return contenders;
                     });
             };
             sweepCount(36864, 3 * n * n, [&](int count) { measure(Memory::cached, count); });
             measure(Memory::streamed, countFor(Memory::streamed, 3 * n * n * sizeof(T)));
         });
     }});

} // namespace
