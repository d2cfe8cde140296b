// Copies between layouts, extraction, identities and transposition beside a plain loop whose
// strides the compiler knows and, where it has the operation, Eigen; memcpy of as many bytes is the
// roofline. Traces and norms beside the same, the limit being the loop on matrices that lie in
// lanes.
#include "eigen_maps.h"
#include "objects.h"
#include "roofline.h"

#include <bit>
#include <cmath>

namespace {

using namespace bench;

enum class Operation { copyVectors, copyMatrices, extract, identity, transpose };

// From one layout to each, in the order S, P, L.
#define QORM_COPIES_FROM(name, letter) name##_##letter##S, name##_##letter##P, name##_##letter##L
#define QORM_COPIES(name) \
    std::make_tuple(QORM_COPIES_FROM(name, S), QORM_COPIES_FROM(name, P), QORM_COPIES_FROM(name, L))

constexpr std::size_t layoutOf(Placement placement) {
    if (placement == Placement::list) return 2;
    return placement == Placement::adjacent || placement == Placement::scattered ? 1 : 0;
}
template <Placement placement>
auto argumentsOf(const auto& operand) {
    if constexpr (layoutOf(placement) == 0)
        return operand.strides();
    else if constexpr (layoutOf(placement) == 1)
        return operand.pointerPerElement();
    else
        return operand.pointerPerObject();
}

template <class T>
struct Data {
    Matrices<T> source;
    Matrices<T> target;
    int count;
};

// The sizes are those of the source.
template <class T, Operation operation, int rows, int columns, Placement from, Placement to>
struct Move {
    static constexpr bool isTransposed = operation == Operation::transpose;
    static constexpr int height = isTransposed ? columns : rows;
    static constexpr int width = isTransposed ? rows : columns;

    static bool library(const Data<T>& data) {
        const auto& [source, target, count] = data;
        if constexpr (operation == Operation::extract)
            return callLibrary(QORM_LAYOUTS(T, qormExtract_ma), from, 1, source, target.base(),
                               width, height, count);
        else if constexpr (operation == Operation::identity)
            return callLibrary(QORM_LAYOUTS(T, qormLoadIdentity_ma), to, 1, target, width, height,
                               count);
        else if constexpr (isTransposed)
            return callLibrary(QORM_LAYOUTS(T, qormTranspose_ma), from, 1, source, columns, rows,
                               target, count);
        else
            return copy(data);
    }

    static bool copy(const Data<T>& data) {
        constexpr std::size_t pair = 3 * layoutOf(from) + layoutOf(to);
        const auto call = [](const auto& functions, const auto&... arguments) {
            return std::apply(std::get<pair>(functions), std::tuple_cat(arguments...)) ==
                   qorStatusOk;
        };
        if constexpr (operation == Operation::copyVectors)
            return call(ofType<T>(QORM_COPIES(qormCopy_va_32f), QORM_COPIES(qormCopy_va_64f)),
                        argumentsOf<from>(Vectors<T>{data.source}),
                        argumentsOf<to>(Vectors<T>{data.target}), std::tuple(columns, data.count));
        else
            return call(ofType<T>(QORM_COPIES(qormCopy_ma_32f), QORM_COPIES(qormCopy_ma_64f)),
                        argumentsOf<from>(data.source), argumentsOf<to>(data.target),
                        std::tuple(columns, rows, data.count));
    }

    // move(s, d) on the addresses of each object.
    template <class MoveObject>
    static bool objectByObject(const Data<T>& data, const MoveObject& move) {
        writeTo(data.target.base(), [&](T* target) {
            const Objects<T, rows, from, columns> s(data.source);
            const Objects<T, height, to, width> d(data.target, target);
            const std::ptrdiff_t count = data.count;
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                move(s.read(operation == Operation::identity ? 0 : k), d.write(k));
            }
        });
        return true;
    }

    static constexpr int fromStep = Steps<rows, columns, from>::row;
    static constexpr int toStep = Steps<height, width, to>::row;

    static void moveObject(const T* __restrict s, T* __restrict d) {
        for (int i = 0; i < height; ++i) {
            for (int j = 0; j < width; ++j) {
                T& element = d[i * toStep + j];
                if constexpr (operation == Operation::identity)
                    element = i == j ? T(1) : T(0);
                else
                    element = isTransposed ? s[j * fromStep + i] : s[i * fromStep + j];
            }
        }
    }

    // Between structures of arrays.
    static bool positionByPosition(const Data<T>& data) {
        for (int i = 0; i < height; ++i) {
            for (int j = 0; j < width; ++j) {
                const T* const s =
                    data.source.pointers()[isTransposed ? j * columns + i : i * columns + j];
                T* const d = data.target.pointers()[i * width + j];
                BENCH_INDEPENDENT
                for (std::ptrdiff_t k = 0; k < data.count; ++k) d[k] = s[k];
            }
        }
        return true;
    }

    // Between an array of structures and a structure of arrays.
    static bool elementByElement(const Data<T>& data) {
        writeTo(data.target.base(), [&](T* target) {
            const Elements<T, rows, from, columns> s(data.source);
            const Elements<T, height, to, width> d(data.target, target);
            const std::ptrdiff_t count = data.count;
            BENCH_INDEPENDENT
            for (std::ptrdiff_t k = 0; k < count; ++k) {
#pragma GCC unroll 8
                for (int i = 0; i < height; ++i) {
#pragma GCC unroll 8
                    for (int j = 0; j < width; ++j) d(k, i, j) = s(k, i, j);
                }
            }
        });
        return true;
    }

    static bool loop(const Data<T>& data) {
        constexpr bool isFromArrays = from == Placement::adjacent;
        constexpr bool isToArrays = to == Placement::adjacent;
        if constexpr (isFromArrays && isToArrays)
            return positionByPosition(data);
        else if constexpr (isFromArrays || isToArrays)
            return elementByElement(data);
        else
            return objectByObject(data, moveObject);
    }

    static constexpr bool isInEigen =
        (operation == Operation::identity || isTransposed) && to != Placement::adjacent;
    static bool maps(const Data<T>& data) {
        return objectByObject(data, []([[maybe_unused]] const T* s, T* d) {
            Eigen::Map<EigenMatrix<T, height, width>, 0, EigenStride<width, toStep>> result(d);
            if constexpr (isTransposed)
                result = ConstMap<T, rows, fromStep, columns>(s).transpose();
            else
                result.setIdentity();
        });
    }
};

// Of all elements, in [1, 2), which become zero: elements are moved unchanged, to fixed places.
template <class T>
double takeHash(const Matrices<T>& matrices) {
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    std::uint64_t hash = 0;
    matrices.forEach([&](T& element) {
        hash = (hash ^ std::bit_cast<Bits>(std::exchange(element, T(0)))) * 0x9e3779b97f4a7c15;
        hash ^= hash >> 32;
    });
    return 1 + static_cast<double>(hash) * 0x1p-64;
}

// Of identities: nothing is read. Bytes that are all zero some processors write twice as fast.
Contender filling(const Subject& subject) {
    const auto bytes = static_cast<std::size_t>(subject.bytes * subject.count);
    const std::shared_ptr<char[]> data(new char[bytes]);
    return {"memset", Role::bound, [=] {
                std::memset(data.get(), 1, bytes);
                return true;
            }};
}

template <class T>
using Run = bool (*)(const Data<T>&);

template <class T>
void row(Session& session, const Subject& subject, const Data<T>& data, Run<T> library, Run<T> loop,
         Run<T> maps, const std::vector<Contender>& bounds) {
    data.source.fillRandomly();
    std::vector<Contender> contenders = {{"qorm", Role::library, [&] { return library(data); }},
                                         {"loop", Role::peer, [&] { return loop(data); }}};
    if (maps) contenders.push_back({"Eigen", Role::peer, [&] { return maps(data); }});
    append(contenders, bounds);
    session.measure(subject, contenders, [&] { return takeHash(data.target); });
}

// Named by the placement that is not packed, if there is one.
template <class T, Operation operation, int rows, int columns, Placement from, Placement to>
void row(Session& session, std::string name, Memory memory) {
    using Own = Move<T, operation, rows, columns, from, to>;
    constexpr bool isIdentity = operation == Operation::identity;
    constexpr bool isNamed = rows != columns && operation != Operation::copyVectors;
    const double bytes = (isIdentity ? 1 : 2) * rows * columns * double{sizeof(T)};
    const int count = countFor(memory, bytes);
    if (isNamed) {
        name.append(" ").append(std::to_string(rows)).append("x").append(std::to_string(columns));
    }
    const int size = operation == Operation::copyVectors ? columns : rows;
    const Placement placement = from == Placement::packed ? to : from;
    const Subject subject = {name, nameOf(placement), memory, nameOfType<T>, size, count, bytes, 0};
    if (!session.wants(subject)) return;
    const Data<T> data = {
        {rows, columns, isIdentity ? 1 : count, from}, {Own::height, Own::width, count, to}, count};
    Run<T> maps = nullptr;
    if constexpr (Own::isInEigen) maps = Own::maps;
    row<T>(session, subject, data, Own::library, Own::loop, maps,
           isIdentity ? std::vector{filling(subject)} : roofline<T>(subject, 1));
}

template <Operation operation, Placement from, Placement to, int... sizes>
void squares(Session& session, const std::string& name, Memory memory) {
    forSizes<sizes...>([&]<class T, int n>() {
        constexpr int rows = operation == Operation::copyVectors ? 1 : n;
        row<T, operation, rows, n, from, to>(session, name, memory);
    });
}

template <Placement placement>
void transposes(Session& session, Memory memory) {
    constexpr Operation operation = Operation::transpose;
    const std::string name = "Transpose ma";
    squares<operation, placement, placement, 3, 4, 5, 6, 8, 16>(session, name, memory);
    forSizes<3>([&]<class T, int n>() {
        row<T, operation, n, 5, placement, placement>(session, name, memory);
    });
}

void copies(Session& session, Memory memory) {
    constexpr Placement packed = Placement::packed;
    constexpr Placement adjacent = Placement::adjacent;
    constexpr Placement list = Placement::list;
    constexpr Operation vectors = Operation::copyVectors;
    constexpr Operation matrices = Operation::copyMatrices;
    squares<vectors, packed, adjacent, 3, 4>(session, "Copy va_SP", memory);
    squares<vectors, adjacent, packed, 3, 4>(session, "Copy va_PS", memory);
    squares<matrices, packed, adjacent, 3, 4, 5, 6, 8>(session, "Copy ma_SP", memory);
    squares<matrices, adjacent, packed, 3, 4, 5, 6, 8>(session, "Copy ma_PS", memory);
    squares<matrices, packed, packed, 3, 4, 6>(session, "Copy ma_SS", memory);
    squares<matrices, packed, list, 3, 4, 6>(session, "Copy ma_SL", memory);
    squares<matrices, list, packed, 3, 4, 6>(session, "Copy ma_LS", memory);
    squares<Operation::extract, Placement::padded, packed, 3, 4, 6>(session, "Extract ma", memory);
    squares<Operation::identity, packed, packed, 3, 4, 6>(session, "LoadIdentity ma", memory);
}

const Registration
    movement({"movement", {"qorm", "loop", "Eigen", "memcpy", "memset"}, [](Session& session) {
                  for (const Memory memory : {Memory::cached, Memory::streamed}) {
                      copies(session, memory);
                      transposes<Placement::packed>(session, memory);
                      transposes<Placement::adjacent>(session, memory);
                  }
                  transposes<Placement::padded>(session, Memory::cached);
                  transposes<Placement::list>(session, Memory::cached);
              }});

enum class Reduction { trace, norm };
constexpr const char* reductionNames[] = {"Trace ma", "FrobNorm ma"};

template <class T>
struct Reduced {
    int n;
    int count;
    Placement placement;
    Matrices<T> source{n, n, count, placement};
    Matrices<T> results{1, 1, count, Placement::adjacent};

    Reduced(int size, int objects, Placement where) : n(size), count(objects), placement(where) {
        source.fillRandomly();
    }

    bool library(Reduction reduction) const {
        if (reduction == Reduction::trace)
            return callLibrary(QORM_LAYOUTS(T, qormTrace_ma), placement, 1, source, n,
                               results.base(), count);
        return callLibrary(QORM_LAYOUTS(T, qormFrobNorm_ma), placement, 1, source, n, n,
                           results.base(), count);
    }
};

template <class T, int n, Reduction reduction, Placement placement>
bool reduceByLoop(const Reduced<T>& data) {
    writeTo(data.results.base(), [&](T* results) {
        const Elements<T, n, placement> a(data.source);
        const std::ptrdiff_t count = data.count;
        BENCH_INDEPENDENT
        for (std::ptrdiff_t k = 0; k < count; ++k) {
            T sum = 0;
#pragma GCC unroll 16
            for (int i = 0; i < n; ++i) {
                if constexpr (reduction == Reduction::trace) {
                    sum += a(k, i, i);
                } else {
#pragma GCC unroll 16
                    for (int j = 0; j < n; ++j) sum += a(k, i, j) * a(k, i, j);
                }
            }
            results[k] = reduction == Reduction::trace ? sum : std::sqrt(sum);
        }
    });
    return true;
}

template <class T, int n, Reduction reduction, Placement placement>
bool reduceMaps(const Reduced<T>& data) {
    using Array = Objects<T, n, placement>;
    writeTo(data.results.base(), [&](T* results) {
        const Array a(data.source);
        const std::ptrdiff_t count = data.count;
        for (std::ptrdiff_t k = 0; k < count; ++k) {
            const ConstMap<T, n, Array::rowStep> x(a.read(k));
            results[k] = reduction == Reduction::trace ? x.trace() : x.norm();
        }
    });
    return true;
}

// A trace reads n elements of a matrix, but memory brings lines.
template <class T>
int elementsRead(Reduction reduction, int n, Placement placement, Memory memory) {
    if (reduction == Reduction::norm) return n * n;
    if (memory == Memory::cached || placement == Placement::adjacent) return n;
    return std::min(n, static_cast<int>(64 / sizeof(T))) * n;
}

template <class T>
void row(Session& session, Reduction reduction, int n, Placement placement, Memory memory,
         bool (*loop)(const Reduced<T>&), bool (*maps)(const Reduced<T>&),
         bool (*lanes)(const Reduced<T>&)) {
    const int count = countFor(memory, (n * n + 1) * double{sizeof(T)});
    const int elements = elementsRead<T>(reduction, n, placement, memory);
    const double operations = reduction == Reduction::trace ? n - 1 : 2 * n * n - 1;
    const Subject subject = {reductionNames[static_cast<int>(reduction)],
                             nameOf(placement),
                             memory,
                             nameOfType<T>,
                             n,
                             count,
                             (elements + 1) * double{sizeof(T)},
                             operations};
    if (!session.wants(subject)) return;
    const Reduced<T> data(n, count, placement);
    std::vector<Contender> contenders = {
        {"qorm", Role::library, [&] { return data.library(reduction); }},
        {"loop", Role::peer, [&] { return loop(data); }}};
    if (maps) contenders.push_back({"Eigen", Role::peer, [&] { return maps(data); }});
    if (memory == Memory::cached) {
        const auto inLanes = std::make_shared<Reduced<T>>(n, count, Placement::adjacent);
        contenders.push_back({"lanes", Role::limit, [=] { return lanes(*inLanes); }});
    }
    append(contenders, roofline<T>(subject, 1));
    session.measure(subject, contenders, [&] { return data.results.takeSquares(); });
}

template <Reduction reduction, Placement placement>
void reductions(Session& session, Memory memory) {
    forSizes<3, 4, 5, 6, 8, 16>([&]<class T, int n>() {
        bool (*maps)(const Reduced<T>&) = nullptr;
        if constexpr (placement != Placement::adjacent)
            maps = reduceMaps<T, n, reduction, placement>;
        row<T>(session, reduction, n, placement, memory, reduceByLoop<T, n, reduction, placement>,
               maps, reduceByLoop<T, n, reduction, Placement::adjacent>);
    });
}

template <Reduction reduction>
void reductions(Session& session) {
    reductions<reduction, Placement::packed>(session, Memory::cached);
    reductions<reduction, Placement::padded>(session, Memory::cached);
    reductions<reduction, Placement::adjacent>(session, Memory::cached);
    reductions<reduction, Placement::list>(session, Memory::cached);
    reductions<reduction, Placement::packed>(session, Memory::streamed);
}

const Registration tracesAndNorms({"traces and norms",
                                   {"qorm", "loop", "Eigen", "lanes", "memcpy", "peak"},
                                   [](Session& session) {
                                       reductions<Reduction::trace>(session);
                                       reductions<Reduction::norm>(session);
                                   }});

} // namespace
