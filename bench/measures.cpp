// Determinants and inverses beside a plain loop whose strides the compiler knows (by cofactors up
// to 4x4, by elimination with partial pivoting beyond), Eigen's fixed sizes, and LAPACK, which gets
// a call per matrix. The limit works on matrices that lie in lanes and need no pivoting.
#include "closed_forms.h"
#include "eigen_maps.h"
#include "factors.h"
#include "objects.h"
#include "roofline.h"

#include <Eigen/LU>
#include <cmath>
#include <lapacke.h>

namespace {

using namespace bench;

enum class Operation { determinant, inverse };
constexpr const char* operationNames[] = {"Det ma", "Invert ma"};

template <class T, Operation operation>
struct Measure {
    int n;
    int count;
    Placement placement;
    Matrices<T> source{n, n, count, placement};
    Matrices<T> result = operation == Operation::determinant
                             ? Matrices<T>(1, 1, count, Placement::adjacent)
                             : Matrices<T>(n, n, count, placement);
    std::vector<T> scratch = std::vector<T>(static_cast<std::size_t>(n * n + n));

    Measure(int size, int objects, Placement where, bool exchanged)
        : n(size), count(objects), placement(where) {
        source.fillDominated(exchanged);
    }

    bool library(int threads) {
        if constexpr (operation == Operation::determinant)
            return callLibrary(QORM_LAYOUTS(T, qormDet_ma), placement, threads, source, n,
                               scratch.data(), result.base(), count);
        else
            return callLibrary(QORM_LAYOUTS(T, qormInvert_ma), placement, threads, source,
                               scratch.data(), result, n, count);
    }
    bool lanes() const {
        if constexpr (operation == Operation::determinant)
            determinantsInLanes(n, source.planes(), result.base(), count);
        else
            invertInLanes(n, source.planes(), result.planes(), count);
        return true;
    }
};

template <class T, int n>
T eliminate(T (&m)[n][n]) {
    T determinant = 1;
    for (int p = 0; p < n; ++p) {
        if (exchangeRows(m, p) != p) determinant = -determinant;
        determinant *= m[p][p];
        const T r = 1 / m[p][p];
        for (int i = p + 1; i < n; ++i) {
            const T f = m[i][p] * r;
            for (int j = p + 1; j < n; ++j) m[i][j] -= f * m[p][j];
        }
    }
    return determinant;
}

// Gauss and Jordan's elimination, in place.
template <class T, int n>
void invert(T (&m)[n][n]) {
    int exchanged[n];
    for (int p = 0; p < n; ++p) {
        exchanged[p] = exchangeRows(m, p);
        const T r = 1 / std::exchange(m[p][p], T(1));
        for (int j = 0; j < n; ++j) m[p][j] *= r;
        for (int i = 0; i < n; ++i) {
            if (i == p) continue;
            const T f = std::exchange(m[i][p], T(0));
            for (int j = 0; j < n; ++j) m[i][j] -= f * m[p][j];
        }
    }
    for (int p = n - 1; p >= 0; --p) {
        for (int i = 0; i < n; ++i) std::swap(m[i][p], m[i][exchanged[p]]);
    }
}

// What the peers do with a measure of one size and placement.
template <class T, Operation operation>
struct Peers {
    using Run = bool (*)(const Measure<T, operation>&);
    Run loop, maps, lapack;
};

template <class T, int n, Operation operation, Placement placement>
struct PeersOf {
    using Data = Measure<T, operation>;
    using Array = Objects<T, n, placement>;
    static constexpr int rowStep = Array::rowStep;
    static constexpr bool isClosed = n <= largestClosedForm;

    // determinant(a) or invert(a, d) on the addresses of each object.
    template <class Work>
    static bool objectByObject(const Data& data, const Work& work) {
        writeTo(data.result.base(), [&](T* target) {
            const Array a(data.source), d(data.result, target);
            const std::ptrdiff_t count = data.count;
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                if constexpr (operation == Operation::determinant)
                    target[k] = work(a.read(k));
                else
                    work(a.read(k), d.write(k));
            }
        });
        return true;
    }

    // By tables of element addresses, objects side by side.
    static bool positionByPosition(const Data& data) {
        std::array<const T*, n * n> a;
        std::copy_n(data.source.pointers(), n * n, a.begin());
        if constexpr (operation == Operation::determinant) {
            T* const determinants = data.result.base();
            BENCH_INDEPENDENT
            for (int k = 0; k < data.count; ++k) {
                determinants[k] =
                    closedDeterminant<n>([&](int i, int j) { return a[i * n + j][k]; });
            }
        } else {
            std::array<T*, n * n> d;
            std::copy_n(data.result.pointers(), n * n, d.begin());
            BENCH_INDEPENDENT
            for (int k = 0; k < data.count; ++k) {
                closedInverse<n>([&](int i, int j) { return a[i * n + j][k]; },
                                 [&](int i, int j) -> T& { return d[i * n + j][k]; });
            }
        }
        return true;
    }

    using Tile = T[n][n];
    static void load(const T* a, Tile& m) {
        for (int i = 0; i < n; ++i) std::copy_n(a + i * rowStep, n, m[i]);
    }
    [[gnu::always_inline]] static T determinantOf(const T* __restrict a) {
        if constexpr (isClosed) {
            return closedDeterminant<n>([&](int i, int j) { return a[i * rowStep + j]; });
        } else {
            Tile m;
            load(a, m);
            return eliminate(m);
        }
    }
    [[gnu::always_inline]] static void invertOne(const T* __restrict a, T* __restrict d) {
        if constexpr (isClosed) {
            closedInverse<n>([&](int i, int j) { return a[i * rowStep + j]; },
                             [&](int i, int j) -> T& { return d[i * rowStep + j]; });
        } else {
            Tile m;
            load(a, m);
            invert(m);
            for (int i = 0; i < n; ++i) std::copy_n(m[i], n, d + i * rowStep);
        }
    }
    static bool loop(const Data& data) {
        if constexpr (operation == Operation::determinant)
            return objectByObject(data, [](const T* a) { return determinantOf(a); });
        else
            return objectByObject(data, [](const T* a, T* d) { invertOne(a, d); });
    }

    static bool maps(const Data& data) {
        using Source = ConstMap<T, n, rowStep>;
        if constexpr (operation == Operation::determinant)
            return objectByObject(data, [](const T* a) { return Source(a).determinant(); });
        else
            return objectByObject(
                data, [](const T* a, T* d) { Map<T, n, rowStep>{d} = Source(a).inverse(); });
    }

    // Rows are columns to LAPACK. The transposed matrix has the same determinant and the transposed
    // inverse.
    static bool lapack(const Data& data) {
        const auto factor = ofType<T>(LAPACKE_sgetrf_work, LAPACKE_dgetrf_work);
        const auto invertFactored = ofType<T>(LAPACKE_sgetri_work, LAPACKE_dgetri_work);
        std::array<lapack_int, n> exchanged;
        std::array<T, 64 * n> work;
        if constexpr (operation == Operation::determinant)
            return objectByObject(data, [&](const T* a) {
                Tile m;
                load(a, m);
                factor(LAPACK_COL_MAJOR, n, n, m[0], n, exchanged.data());
                T determinant = 1;
                for (int p = 0; p < n; ++p) {
                    determinant *= exchanged[p] == p + 1 ? m[p][p] : -m[p][p];
                }
                return determinant;
            });
        else
            return objectByObject(data, [&](const T* a, T* d) {
                for (int i = 0; i < n; ++i) std::copy_n(a + i * rowStep, n, d + i * rowStep);
                factor(LAPACK_COL_MAJOR, n, n, d, rowStep, exchanged.data());
                invertFactored(LAPACK_COL_MAJOR, n, d, rowStep, exchanged.data(), work.data(),
                               static_cast<lapack_int>(work.size()));
            });
    }
};

// Of an elimination; closed forms have about as many up to 4x4.
constexpr double operationsOf(Operation operation, int n) {
    if (operation == Operation::inverse) return n * (2.0 * n * (n - 1) + 1);
    return n - 1 + eliminationOperations(n);
}

template <class T, Operation operation>
Subject subjectOf(int n, Placement placement, Memory memory, int count) {
    const int elements = operation == Operation::determinant ? n * n + 1 : 2 * n * n;
    return {operationNames[static_cast<int>(operation)],
            nameOf(placement),
            memory,
            nameOfType<T>,
            n,
            count,
            elements * double{sizeof(T)},
            operationsOf(operation, n)};
}

template <class T, Operation operation>
void row(Session& session, int n, Placement placement, Memory memory,
         const Peers<T, operation>& peers) {
    // The general inverse has the fifth power of n for operations: it makes nothing of memory.
    if (operation == Operation::inverse && memory == Memory::streamed && n > 6) return;
    const int count = countFor(memory, subjectOf<T, operation>(n, placement, memory, 0).bytes);
    const Subject subject = subjectOf<T, operation>(n, placement, memory, count);
    if (!session.wants(subject)) return;
    Measure<T, operation> measure(n, count, placement, true);
    std::vector<Contender> contenders = {
        {"qorm", Role::library, [&] { return measure.library(1); }},
        {"loop", Role::peer, [&] { return peers.loop(measure); }},
        {"Eigen", Role::peer, [&] { return peers.maps(measure); }}};
    if (memory == Memory::cached) {
        contenders.push_back({"LAPACK", Role::peer, [&] { return peers.lapack(measure); }});
        const auto inLanes =
            std::make_shared<Measure<T, operation>>(n, count, Placement::adjacent, false);
        contenders.push_back({"lanes", Role::limit, [=] { return inLanes->lanes(); }});
    }
    append(contenders, roofline<T>(subject, 1));
    session.measure(subject, contenders, [&] { return measure.result.takeSquares(); });
}

template <Operation operation, Placement placement>
void rows(Session& session, Memory memory) {
    forSizes<2, 3, 4, 5, 6, 8, 16>([&]<class T, int n>() {
        // Elements with a pointer each are copied, wherever they lie.
        constexpr Placement access =
            placement == Placement::adjacent ? Placement::scattered : placement;
        using Own = PeersOf<T, n, operation, access>;
        Peers<T, operation> peers = {Own::loop, Own::maps, Own::lapack};
        if constexpr (placement == Placement::adjacent && n <= largestClosedForm) {
            peers.loop = Own::positionByPosition;
        }
        row<T, operation>(session, n, placement, memory, peers);
    });
}

template <Operation operation>
void rows(Session& session, Memory memory) {
    rows<operation, Placement::packed>(session, memory);
    rows<operation, Placement::padded>(session, memory);
    rows<operation, Placement::adjacent>(session, memory);
    rows<operation, Placement::scattered>(session, memory);
    rows<operation, Placement::list>(session, memory);
}

const Registration measures({"measures",
                             {"qorm", "loop", "Eigen", "LAPACK", "lanes", "memcpy", "peak"},
                             [](Session& session) {
                                 for (const Memory memory : {Memory::cached, Memory::streamed}) {
                                     rows<Operation::determinant>(session, memory);
                                     rows<Operation::inverse>(session, memory);
                                 }
                             }});

template <Operation operation>
void sweep(Session& session) {
    forSizes<3, 6, 8>([&]<class T, int n>() {
        const auto measureRow = [&](Placement placement, int count) {
            const Subject subject = subjectOf<T, operation>(n, placement, Memory::cached, count);
            if (!session.wants(subject)) return;
            Measure<T, operation> measure(n, count, placement, true);
            std::vector<Contender> contenders =
                twoThreadsAndOne([&](int threads) { return measure.library(threads); });
            append(contenders, roofline<T>(subject, 2));
            session.measure(subject, contenders, [&] { return measure.result.takeSquares(); });
        };
        for (const Placement placement :
             {Placement::packed, Placement::adjacent, Placement::list}) {
            const bool isHigh = placement == Placement::list && sizeof(T) == 4;
            sweepCount(isHigh ? 40001 : 20001, operation == Operation::inverse ? 2 * n : n,
                       [&](int count) { measureRow(placement, count); });
        }
    });
}

const Registration measuresOnThreads({"measures on threads",
                                      {"2 threads", "1 thread", "memcpy", "peak"},
                                      [](Session& session) {
                                          sweep<Operation::determinant>(session);
                                          sweep<Operation::inverse>(session);
                                      }});

} // namespace
