// The arguments of an operation, in groups. A function's parameter list is a sequence of groups:
// operands in one of the three layouts, plain results, scratch, sizes, the count. Every tier of
// every function works on these groups; nothing else in the library knows how a layout is passed.
//
// Each group tells whether it is faulty, turns into its contiguous self, takes the share of a
// thread, and unpacks into the C arguments that it came from.
#pragma once

#include "frame/elements.h"
#include "qorm/types.h"

#include <cstdint>
#include <limits>
#include <tuple>

namespace qorm {

// An operand's letters in a shape.
enum class Kind { m, t, v, ma, ta, va };

constexpr bool isArray(Kind kind) {
    return kind == Kind::ma || kind == Kind::ta || kind == Kind::va;
}
constexpr bool isTransposed(Kind kind) {
    return kind == Kind::t || kind == Kind::ta;
}
constexpr bool isVector(Kind kind) {
    return kind == Kind::v || kind == Kind::va;
}

// A stored matrix as a shape's letter reads it.
template <Kind kind, class Matrix>
auto asRead(const Matrix& matrix) {
    if constexpr (isTransposed(kind))
        return Transposed{matrix};
    else
        return matrix;
}

enum class Layout { S, P, L };

// What one thread of a fan-out works on.
struct Share {
    int thread;
    int first; // object
    int count;
    char* scratch; // of all threads
};

template <class T>
constexpr bool isMultipleOfElement(std::int32_t bytes) {
    return bytes % static_cast<std::int32_t>(sizeof(T)) == 0;
}

template <class T>
constexpr bool isBadStride(std::int32_t stride) {
    return !isMultipleOfElement<T>(stride) || stride < 1;
}

template <class T>
constexpr bool isBadShift(std::int32_t shift) {
    return !isMultipleOfElement<T>(shift) || shift < 0;
}

template <bool isPresent, class Argument>
auto tupleIf(Argument argument) {
    if constexpr (isPresent)
        return std::tuple(argument);
    else
        return std::tuple();
}

// What holds for a group unless it says otherwise. Rows are adjacent if they follow one another
// without a gap, objects of so many elements likewise; objects lie side by side if the elements of
// each position do.
struct Group {
    bool isNull() const { return false; }
    static constexpr bool isList() { return false; }
    bool hasBadSize() const { return false; }
    bool hasBadCount() const { return false; }
    bool hasBadStride0() const { return false; }
    bool hasBadInnerStride() const { return false; }
    bool hasBadShift() const { return false; }
    bool holdsMany() const { return false; }
    bool isContiguous() const { return true; }
    bool canStep(int) const { return true; }
    bool hasAdjacentRows(std::ptrdiff_t) const { return false; }
    bool hasAdjacentObjects(std::ptrdiff_t) const { return false; }
    bool hasObjectsSideBySide() const { return false; }
    std::size_t scratchBytes() const { return 0; }
    std::tuple<> sizes() const { return {}; }
};

// A matrix or an array of matrices by strides; a single one has no stride0. A vector is a matrix of
// one row and has no stride1.
template <class T, Kind kind, bool contiguousRows>
struct Strided : Group {
    using Element = T;
    static constexpr Layout layout = Layout::S;
    static constexpr bool hasContiguousRows = contiguousRows;
    static constexpr bool holdsArray = isArray(kind);

    T* base;
    std::int32_t stride0;
    std::int32_t stride1;
    std::int32_t stride2;

    Strided(T* p, std::int32_t s0, std::int32_t s1, std::int32_t s2)
        : base(p), stride0(s0), stride1(s1), stride2(s2) {}

    bool isNull() const { return base == nullptr; }
    bool hasBadStride0() const { return isArray(kind) && isBadStride<T>(stride0); }
    bool hasBadInnerStride() const {
        return (!isVector(kind) && isBadStride<T>(stride1)) || isBadStride<T>(stride2);
    }
    bool isContiguous() const { return stride2 == static_cast<std::int32_t>(sizeof(T)); }

    bool hasAdjacentRows(std::ptrdiff_t columns) const {
        return contiguousRows && (isVector(kind) || stride1 == columns * std::ptrdiff_t{sizeof(T)});
    }
    bool hasAdjacentObjects(std::ptrdiff_t elements) const {
        return isArray(kind) && stride0 == elements * std::ptrdiff_t{sizeof(T)};
    }

    Strided<T, kind, true> contiguous() const { return {base, stride0, stride1, stride2}; }
    Strided share(const Share& share) const { return {at(share.first), stride0, stride1, stride2}; }

    auto arguments() const {
        return std::tuple_cat(std::tuple(base), tupleIf<isArray(kind)>(stride0),
                              tupleIf<!isVector(kind)>(stride1), tupleIf<!contiguousRows>(stride2));
    }

    StridedMatrix<T, contiguousRows> object(std::ptrdiff_t n, std::ptrdiff_t /*columns*/) const {
        return {at(n), stride1, stride2};
    }

private:
    T* at(std::ptrdiff_t n) const { return isArray(kind) ? stepped(base, n * stride0) : base; }
};

// A matrix, a vector or an array of them by a table of element addresses.
template <class T, bool array>
struct Pointers : Group {
    using Element = T;
    static constexpr Layout layout = Layout::P;
    static constexpr bool hasContiguousRows = false;
    static constexpr bool holdsArray = array;

    T* const* table;
    std::int32_t shift;
    std::int32_t stride0;

    Pointers(T* const* pp, std::int32_t byteShift, std::int32_t s0)
        : table(pp), shift(byteShift), stride0(s0) {}

    bool isNull() const { return table == nullptr; }
    bool hasBadStride0() const { return array && isBadStride<T>(stride0); }
    bool hasBadShift() const { return isBadShift<T>(shift); }
    // A thread's share begins at a larger shift, which has to fit its 32 bits.
    bool canStep(int count) const {
        return !array ||
               shift + std::int64_t{count} * stride0 <= std::numeric_limits<std::int32_t>::max();
    }

    bool hasObjectsSideBySide() const {
        return !array || stride0 == static_cast<std::int32_t>(sizeof(T));
    }

    Pointers contiguous() const { return *this; }
    Pointers share(const Share& share) const {
        return {table, array ? shift + share.first * stride0 : shift, stride0};
    }

    auto arguments() const {
        if constexpr (array)
            return std::tuple(table, shift, stride0);
        else
            return std::tuple(table, shift);
    }

    TabledMatrix<T> object(std::ptrdiff_t n, std::ptrdiff_t columns) const {
        return {table, columns, array ? shift + n * stride0 : shift};
    }
};

// An array of matrices or of vectors by a table of object addresses.
template <class T, Kind kind, bool contiguousRows>
struct List : Group {
    using Element = T;
    static constexpr Layout layout = Layout::L;
    static constexpr bool hasContiguousRows = contiguousRows;
    static constexpr bool holdsArray = isArray(kind);
    static constexpr std::int32_t stride0 = 0;

    T* const* table;
    std::int32_t shift;
    std::int32_t stride1;
    std::int32_t stride2;

    List(T* const* pp, std::int32_t byteShift, std::int32_t s1, std::int32_t s2)
        : table(pp), shift(byteShift), stride1(s1), stride2(s2) {}

    bool isNull() const { return table == nullptr; }
    static constexpr bool isList() { return true; }
    bool hasBadInnerStride() const {
        return (!isVector(kind) && isBadStride<T>(stride1)) || isBadStride<T>(stride2);
    }
    bool hasBadShift() const { return isBadShift<T>(shift); }
    bool isContiguous() const { return stride2 == static_cast<std::int32_t>(sizeof(T)); }

    bool hasAdjacentRows(std::ptrdiff_t columns) const {
        return contiguousRows && (isVector(kind) || stride1 == columns * std::ptrdiff_t{sizeof(T)});
    }

    List<T, kind, true> contiguous() const { return {table, shift, stride1, stride2}; }
    List share(const Share& share) const { return {table + share.first, shift, stride1, stride2}; }

    auto arguments() const {
        return std::tuple_cat(std::tuple(table, shift), tupleIf<!isVector(kind)>(stride1),
                              tupleIf<!contiguousRows>(stride2));
    }

    StridedMatrix<T, contiguousRows> object(std::ptrdiff_t n, std::ptrdiff_t /*columns*/) const {
        return {stepped(table[n], shift), stride1, stride2};
    }
};

// An array by strides or of a list, for kernels that serve both.
template <class T, Kind kind, bool contiguousRows>
struct Objects {
    using Element = T;
    static constexpr Layout layout = Layout::S;
    static constexpr bool hasContiguousRows = contiguousRows;
    static constexpr bool holdsArray = true;

    T* base;         // of the first object by strides
    T* const* table; // of a list
    std::int32_t shift;
    std::int32_t stride0;
    std::int32_t stride1;
    std::int32_t stride2;

    explicit Objects(const Strided<T, kind, contiguousRows>& array)
        : base(array.base),
          table(nullptr),
          shift(0),
          stride0(array.stride0),
          stride1(array.stride1),
          stride2(array.stride2) {}
    explicit Objects(const List<T, kind, contiguousRows>& list)
        : base(nullptr),
          table(list.table),
          shift(list.shift),
          stride0(0),
          stride1(list.stride1),
          stride2(list.stride2) {}

    bool isList() const { return table != nullptr; }
    Strided<T, kind, contiguousRows> strided() const { return {base, stride0, stride1, stride2}; }
    List<T, kind, contiguousRows> listed() const { return {table, shift, stride1, stride2}; }

    bool hasAdjacentRows(std::ptrdiff_t columns) const {
        return strided().hasAdjacentRows(columns);
    }
    bool hasAdjacentObjects(std::ptrdiff_t elements) const {
        return strided().hasAdjacentObjects(elements);
    }
    bool hasObjectsSideBySide() const { return false; }

    StridedMatrix<T, contiguousRows> object(std::ptrdiff_t n, std::ptrdiff_t /*columns*/) const {
        return {isList() ? stepped(table[n], shift) : stepped(base, n * stride0), stride1, stride2};
    }
};

// A group as such kernels see it.
template <class G>
const G& asObjects(const G& group) {
    return group;
}
template <class T, Kind kind, bool contiguousRows>
requires(isArray(kind)) Objects<T, kind, contiguousRows> asObjects(
    const Strided<T, kind, contiguousRows>& array) {
    return Objects<T, kind, contiguousRows>(array);
}
template <class T, Kind kind, bool contiguousRows>
Objects<T, kind, contiguousRows> asObjects(const List<T, kind, contiguousRows>& list) {
    return Objects<T, kind, contiguousRows>(list);
}

// A plain array, `elements` per object; with none of its own, all objects have the same run.
template <class T>
struct Plain : Group {
    T* base;
    std::int32_t elements;

    Plain(T* p, std::int32_t perObject) : base(p), elements(perObject) {}

    bool isNull() const { return base == nullptr; }

    Plain contiguous() const { return *this; }
    Plain share(const Share& share) const { return {object(share.first).base, elements}; }
    auto arguments() const { return std::tuple(base); }

    Run<T> object(std::ptrdiff_t n) const {
        return {stepped(base, n * elements * std::ptrdiff_t{sizeof(T)})};
    }
};

// Matrices or vectors without any gap, of so many rows and columns each.
template <class T>
struct Packed : Group {
    using Element = T;
    static constexpr Layout layout = Layout::S;
    static constexpr bool hasContiguousRows = true;
    static constexpr bool holdsArray = true;
    static constexpr std::ptrdiff_t stride2{sizeof(T)};

    T* base;
    std::ptrdiff_t stride0;
    std::ptrdiff_t stride1;

    // Sizes may still be faulty, and anything.
    Packed(T* p, std::ptrdiff_t rows, std::ptrdiff_t columns)
        : base(p),
          stride0(static_cast<std::ptrdiff_t>(static_cast<std::size_t>(rows) *
                                              static_cast<std::size_t>(columns) * sizeof(T))),
          stride1(columns * stride2) {}

    bool isNull() const { return base == nullptr; }
    bool hasAdjacentRows(std::ptrdiff_t /*columns*/) const { return true; }
    bool hasAdjacentObjects(std::ptrdiff_t /*elements*/) const { return true; }

    Packed contiguous() const { return *this; }

    StridedMatrix<T, true> object(std::ptrdiff_t n, std::ptrdiff_t /*columns*/) const {
        return {stepped(base, n * stride0), stride1, stride2};
    }
};

// Scratch for one object at a time. The threads of a fan-out get a slice of so many elements each
// of a block that the driver allocates.
template <class T>
struct Scratch : Group {
    T* base;
    std::int64_t elements;

    Scratch(T* p, std::int64_t perThread) : base(p), elements(perThread) {}

    bool isNull() const { return base == nullptr; }
    std::size_t scratchBytes() const { return sizeof(T) * static_cast<std::size_t>(elements); }

    Scratch contiguous() const { return *this; }
    Scratch share(const Share& share) const {
        char* slice = share.scratch + static_cast<std::size_t>(share.thread) * scratchBytes();
        return {reinterpret_cast<T*>(slice), elements};
    }
    auto arguments() const { return std::tuple(base); }
};

struct Size : Group {
    std::int32_t value;

    explicit Size(std::int32_t size) : value(size) {}

    bool hasBadSize() const { return value < 1; }
    std::tuple<std::uint32_t> sizes() const { return {static_cast<std::uint32_t>(value)}; }

    Size contiguous() const { return *this; }
    Size share(const Share&) const { return *this; }
    auto arguments() const { return std::tuple(value); }
};

// A size that cores take behind all operands.
struct LateSize : Size {
    using Size::Size;

    LateSize contiguous() const { return *this; }
    LateSize share(const Share&) const { return *this; }
};

// A size that cores do not take: it has been found equal to another.
struct CheckedSize : Size {
    using Size::Size;

    CheckedSize contiguous() const { return *this; }
    CheckedSize share(const Share&) const { return *this; }
};

// A number passed by value.
template <class T>
struct Constant : Group {
    T value;

    explicit Constant(T number) : value(number) {}

    Constant contiguous() const { return *this; }
    Constant share(const Share&) const { return *this; }
    auto arguments() const { return std::tuple(value); }
};

struct Count : Group {
    std::int32_t value;

    explicit Count(std::int32_t count) : value(count) {}

    bool hasBadCount() const { return value < 1; }
    bool holdsMany() const { return value > 1; }
    std::tuple<std::uint32_t> sizes() const { return {static_cast<std::uint32_t>(value)}; }

    Count contiguous() const { return *this; }
    Count share(const Share& share) const { return Count(share.count); }
    auto arguments() const { return std::tuple(value); }
};

// Whether an operand is known to be of vectors: pointers don't tell.
template <class Operand>
inline constexpr bool holdsVectors = false;
template <class T, Kind kind, bool contiguousRows>
inline constexpr bool holdsVectors<Strided<T, kind, contiguousRows>> = isVector(kind);
template <class T, Kind kind, bool contiguousRows>
inline constexpr bool holdsVectors<Objects<T, kind, contiguousRows>> = isVector(kind);

// Calls an entry or a driver with the arguments that the groups stand for.
template <class Function, class... Groups>
qorStatus call(Function* function, const Groups&... groups) {
    return std::apply(function, std::tuple_cat(groups.arguments()...));
}

// The place of a group's arguments in a call of a core.
enum class Place { asGiven, late, none };

template <class G>
inline constexpr Place placeOf = Place::asGiven;
template <>
inline constexpr Place placeOf<LateSize> = Place::late;
template <>
inline constexpr Place placeOf<CheckedSize> = Place::none;
template <>
inline constexpr Place placeOf<Count> = Place::late;

template <Place place, class G>
auto argumentsAt(const G& group) {
    if constexpr (placeOf<G> == place)
        return group.arguments();
    else
        return std::tuple();
}

template <class Function, class... Groups>
qorStatus callCore(Function* core, const Groups&... groups) {
    return std::apply(core, std::tuple_cat(argumentsAt<Place::asGiven>(groups)...,
                                           argumentsAt<Place::late>(groups)...));
}

} // namespace qorm
