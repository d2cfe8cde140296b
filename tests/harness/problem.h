// One set of operands for all functions of an operation and a shape, wherever they take them.
#pragma once

#include "harness/call.h"
#include "harness/inputs.h"

namespace harness {

inline Sizes sizesOf(const Function& function, int rows, int inner, int columns, int count) {
    if (function.hasSize("src1Width")) return productSizes(function, rows, inner, columns, count);
    return {{"len", columns},
            {"widthHeight", columns},
            {"width", std::min(rows, columns)},
            {"height", std::max(rows, columns)},
            {"count", count}};
}

// Most are small enough to have paths of their own.
inline Sizes anySizes(const Function& function, Random& random) {
    const int largest = function.hasSize("len") ? 40 : function.operation == "Invert" ? 9 : 18;
    const auto extent = [&] { return integer(random, 1, integer(random, 0, 3) > 0 ? 8 : largest); };
    const int rows = extent();
    const bool isSquare = integer(random, 0, 1) == 0;
    const int columns = isSquare ? rows : extent();
    const int inner = isSquare ? rows : extent();
    const int count = integer(random, 1, std::clamp(1500 / (rows * columns), 3, 40));
    return sizesOf(function, rows, inner, columns, count);
}

// Enough objects for every function to spread them over threads.
inline Sizes sizesOfMany(const Function& function) {
    const bool countsObjects =
        function.isOneOf("Mul Gaxpy Sub", "mva tva cva") || function.operation == "CrossProduct";
    if (countsObjects) return sizesOf(function, 3, 3, 3, 20002);
    if (contains("Det Trace Invert", function.operation)) return sizesOf(function, 6, 6, 6, 6700);
    return function.hasSize("len") ? sizesOf(function, 1, 1, 33, 1300)
                                   : sizesOf(function, 9, 9, 9, 620);
}

class Problem {
public:
    // Numbers are far from all thresholds unless they are special. Those of moves are any bits.
    Problem(const Function& of, const Sizes& givenSizes, bool withSpecialNumbers,
            std::uint64_t givenSeed)
        : function(of),
          sizes(givenSizes),
          hasSpecialNumbers(withSpecialNumbers),
          seed(givenSeed),
          operands_(function, sizes, {.name = "packed"}, seed) {
        Random random(seed);
        if (takesMatrixApart())
            setMatrices(random);
        else if (!isMoved())
            withType(function, [&]<class T>(T) { setNumbers<T>(random); });
    }
    Problem(const Problem&) = delete;
    Problem& operator=(const Problem&) = delete;

    const Function function;
    const Sizes sizes;
    const bool hasSpecialNumbers;
    const std::uint64_t seed;

    int count() const { return function.array ? sizes.at("count") : 1; }
    bool isMoved() const { return contains("Copy Extract Transpose", function.operation); }
    // Its operands, as those of a call that is never run.
    const Call& operands() const { return operands_; }

    // Gives a call's operands the elements of objects from `first` on.
    void pose(const Call& call, int first) const {
        for (const Operand& operand : call.operands()) {
            if (operand.parameter.isScratch()) continue;
            const Operand& given = operands_.operand(operand.parameter.name);
            operand.forEachElement([&](int n, int i, int j) {
                const char* const element = given.address(first + n, i, j);
                std::copy(element, element + operand.elementSize, operand.address(n, i, j));
            });
            operand.accept();
        }
    }

private:
    bool takesMatrixApart() const {
        return contains("Det Invert LUDecomp CholeskyDecomp QRDecomp EigenValuesSym "
                        "EigenValuesVectorsSym",
                        function.operation);
    }

    // One object is special, or none.
    void setMatrices(Random& random) {
        const Operand& source = operands_.operand("Src");
        const int special = hasSpecialNumbers ? integer(random, 0, count() - 1) : -1;
        for (int object = 0; object < count(); ++object) {
            const Numbers numbers =
                arranged(matrix({source.rows, source.columns}, object == special, random), random);
            source.forEachElementOf(
                object, [&](int n, int i, int j) { source.setNumber(n, i, j, numbers(i, j)); });
        }
    }

    Numbers matrix(Size size, bool isSpecial, Random& random) const {
        const Bounds bounds = withType(function, []<class T>(T) { return Bounds::of<T>(); });
        if (isSpecial && integer(random, 0, 1) == 0)
            return inputs[random() % std::size(inputs)](size, bounds, random);
        Numbers numbers = made(
            size, [&](int i, int j) { return uniform(random) + (i == j ? size.columns + 1 : 0); });
        if (isSpecial) {
            const int k = integer(random, 0, size.columns - 1);
            numbers(k, k) = oneOf({0, -1, harness::nan, bounds.eps, 0x1p-30, 0x1p-52}, random);
        }
        return numbers;
    }

    // Rows where pivots have to be found; eigenproblems are symmetric, and at size 2 open for numbers
    // that are not finite.
    Numbers arranged(Numbers numbers, Random& random) const {
        if (function.operation == "CholeskyDecomp") return numbers;
        if (!function.operation.starts_with("Eigen")) return withRowsShuffled(numbers, random);
        const int n = numbers.size.columns;
        for (int i = 0; i < n; ++i) {
            for (int j = i; j < n; ++j) {
                if (n == 2 && !std::isfinite(numbers(j, i))) numbers(j, i) = 1;
                numbers(i, j) = numbers(j, i);
            }
        }
        return numbers;
    }

    template <class T>
    void setNumbers(Random& random) {
        const std::uint64_t mix = hasSpecialNumbers ? random() : 0;
        for (const Operand& operand : operands_.operands()) {
            const auto kind = operand.parameter.kind;
            const int first = integer(random, 0, operand.columns - 1);
            operand.forEachElement([&](int n, int i, int j) {
                if (kind == Parameter::indices)
                    operand.set<std::int32_t>(n, i, j, (first + n + j) % operand.columns);
                else if (kind == Parameter::source || kind == Parameter::value)
                    operand.set(n, i, j, mixedValue<T>(random, mix));
            });
        }
    }

    Call operands_;
};

} // namespace harness
