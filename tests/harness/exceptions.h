// Where the contract lets functions, or calls of one function, differ that otherwise give the same
// bits.
#pragma once

#include "harness/call.h"

namespace harness {

// A call by which the contract may tell apart how sums are ordered and numbers tested.
struct Way {
    const Function& function;
    const Sizes& sizes;
    const Call& call;

    int size(const char* name) const { return sizes.at(name); }
    int n() const { return size("widthHeight"); }
    bool is32f() const { return function.elementSize == 4; }
    bool isIn(Layout layout) const { return function.layout == layout; }
    bool isPacked() const { return isIn(Layout::S) && call.isContiguous(); }
    bool isByStrides() const { return !isIn(Layout::P) && !call.isContiguous(); }
    bool hasUnrolledSize() const { return n() >= 3 && n() <= 6; }
    bool isAtBoundaries() const { return alignment().find_first_not_of("0 ") == std::string::npos; }

    // How far addresses are from multiples of 16 bytes, and how far they drift by object and row.
    std::string alignment() const {
        std::string text;
        for (const Operand& operand : call.operands()) {
            if (operand.parameter.isPlain()) continue;
            const auto address = reinterpret_cast<std::uintptr_t>(operand.address(0, 0, 0));
            text += std::to_string(address % 16) + ' ';
            const auto addDrift = [&](std::int32_t stride, int extent) {
                text += std::to_string(stride % 16 * extent) + ' ';
            };
            if (operand.parameter.array) addDrift(operand.stride0, operand.objects);
            if (!operand.parameter.isVector()) addDrift(operand.stride1, operand.rows);
        }
        return text;
    }

    // FrobNorm's sums are not told from 0 below a threshold.
    bool takesAnyNorm() const {
        const int width = size("width");
        const bool isThree = width == 3 && size("height") == 3;
        if (isIn(Layout::P)) return function.array && isThree;
        return function.array ? isThree || (width >= 4 && width <= 6) : !is32f();
    }
    bool isLongPackedRun() const {
        const Operand& src = call.operand("Src");
        return call.isContiguous() && !takesAnyNorm() && src.stride1 == src.stride2 * src.columns &&
               src.columns * src.rows > 36;
    }
};

// Ways that agree among each other only, or if `byAlignment` among those of the same alignment. Some
// differ only in numbers at thresholds, or in what is no number.
struct Exception {
    const char* reason;
    std::string_view operations;
    std::string_view shapes;
    bool (*isTrueOf)(const Way&);
    bool onlySpecialNumbers = false;
    bool byAlignment = false;

    bool covers(const Way& way) const {
        return way.function.isOneOf(operations, shapes) && isTrueOf(way);
    }
};

inline const Exception exceptions[] = {
    {"sums of 5 and 6 by general strides begin with the last products", "DotProduct", "vv vav vava",
     [](const Way& way) {
         return way.isByStrides() && (way.size("len") == 5 || way.size("len") == 6);
     }},
    {"sums of 5 and 6 by strides begin with the last elements", "Trace", "m ma",
     [](const Way& way) { return !way.isIn(Layout::P) && (way.n() == 5 || way.n() == 6); }},
    {"long contiguous vectors are summed in blocks from a boundary on", "DotProduct L2Norm", "vv v",
     [](const Way& way) { return way.isPacked() && way.size("len") >= (way.is32f() ? 11 : 9); },
     false, true},
    {"contiguous arrays of both vectors are summed in pairs and blocks", "DotProduct", "vava",
     [](const Way& way) {
         const int len = way.size("len");
         return way.isPacked() && way.is32f() &&
                (way.isAtBoundaries() ? len >= 4 && len != 7 : len >= 11);
     },
     false, true},
    {"contiguous products with an array of vectors are summed in pairs and blocks", "Mul", "mva",
     [](const Way& way) {
         const int len = way.size("src2Len");
         const bool isPaired = len == way.size("src1Height") && len >= 4 && len <= 6;
         const int shortest = isPaired ? 4 : 8;
         return way.isPacked() && way.is32f() && len >= (way.isAtBoundaries() ? shortest : 11);
     },
     false, true},
    {"squares at positions are added in pairs", "FrobNorm", "m ma",
     [](const Way& way) {
         return way.isIn(Layout::P) && !(way.function.array && way.takesAnyNorm());
     }},
    {"squares of long packed runs are added in any order", "FrobNorm", "m",
     [](const Way& way) { return way.isLongPackedRun(); }},
    {"squares of long packed runs are added in any order", "FrobNorm", "ma",
     [](const Way& way) { return way.isLongPackedRun(); }},
    {"small sums and NaN have a norm of 0", "FrobNorm", "m ma",
     [](const Way& way) { return !way.takesAnyNorm(); }, true},
    {"the determinant of a single matrix without pivots is +0", "Det", "m",
     [](const Way& way) { return !way.hasUnrolledSize(); }, true},
    {"a single matrix whose determinant is NaN is singular", "Invert", "m",
     [](const Way& way) { return way.n() == 1 || way.hasUnrolledSize(); }, true},
    {"pivots at positions have another threshold at size 3", "CholeskyDecomp", "m ma",
     [](const Way& way) { return way.isIn(Layout::P) && way.n() == 3; }, true},
    {"pivots by general strides have another threshold at large sizes", "CholeskyDecomp", "ma",
     [](const Way& way) {
         return way.isIn(Layout::S) && way.isByStrides() && !way.is32f() &&
                (way.n() == 6 || !way.hasUnrolledSize());
     },
     true},
    {"arrays at positions store less of an object that fails", "CholeskyDecomp", "ma",
     [](const Way& way) { return way.isIn(Layout::P) && way.hasUnrolledSize(); }, true},
    {"reduced columns of a single matrix are reflected too", "EigenValuesSym", "m",
     [](const Way& way) { return way.n() >= 3; }},
    {"vanishing columns are not looked for", "EigenValuesSym", "ma",
     [](const Way& way) { return way.isIn(Layout::P) && !way.is32f() && way.n() >= 3; }, true},
    {"most single matrices are sorted before the test for singularity", "EigenValuesVectorsSym",
     "m", [](const Way& way) { return way.n() >= 3 && !(way.is32f() && way.isIn(Layout::S)); },
     true},
    {"shifts are told apart by 0 instead of the threshold", "EigenValuesVectorsSym", "m",
     [](const Way& way) { return way.n() >= 3 && way.is32f() && way.isIn(Layout::S); }, true},
};

} // namespace harness
