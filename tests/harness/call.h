// One call of a function on operands that lie in memory as a placement says.
#pragma once

#include "harness/library.h"
#include "harness/memory.h"

#include <cstring>
#include <optional>

namespace harness {

// How operands lie. Gaps, shifts and misalignment are in elements, elements and bytes.
struct Placement {
    // From the nearest to the farthest: elements, rows, objects; rows, elements, objects; and with
    // objects side by side: objects, elements, rows; objects, rows, elements.
    enum Order { byRows, byColumns, byPosition, byPositionInColumns };
    enum Sharing { apart, interleavedElements, interleavedObjects };
    struct Step {
        int objects = 0;
        int rows = 0;
        int elements = 0;
    };

    std::string_view name;
    Order order = byRows;
    std::optional<Order> resultOrder = {}; // if it is another
    int elementGap = 0;
    int rowGap = 0;
    int objectGap = 0;
    int gapsOnlyIn = -1;      // one operand, or all
    bool overlapping = false; // all strides are the element size
    bool scattered = false;   // entries of tables are in random order
    int shift = 0;
    int misalignment = 0;
    bool atFront = false; // right behind an inaccessible page instead of right before one
    Sharing sharing = apart;
    std::string_view destinationOn = {}; // a source, behind whose begin it begins by a step
    Step behindBy = {};
};

class Operand {
public:
    // Element (i, j) of object n, as the shape reads it; (0, j) of a vector or of indices, which
    // are of type std::int32_t. `expected` and `expect` work on the image of what memory has to
    // hold after the call, `set` on both.
    template <class T>
    T get(int n, int i, int j) const {
        return load<T>(address(n, i, j));
    }
    template <class T>
    T expected(int n, int i, int j) const {
        return load<T>(memory->imageOf(address(n, i, j)));
    }
    template <class T>
    void expect(int n, int i, int j, T value) const {
        std::memcpy(memory->imageOf(address(n, i, j)), &value, sizeof value);
    }
    template <class T>
    void set(int n, int i, int j, T value) const {
        std::memcpy(address(n, i, j), &value, sizeof value);
        expect(n, i, j, value);
    }

    // A value of either element type.
    void setNumber(int n, int i, int j, double value) const;
    // Calls visit(n, i, j) for every element, in the order of objects, rows and columns.
    template <class Visit>
    void forEachElement(const Visit& visit) const {
        for (int n = 0; n < objects; ++n) forEachElementOf(n, visit);
    }
    template <class Visit>
    void forEachElementOf(int n, const Visit& visit) const {
        for (int i = 0; i < readRows(); ++i) {
            for (int j = 0; j < readColumns(); ++j) visit(n, i, j);
        }
    }

    char* address(int n, int i, int j) const;
    bool isUntouched(int n) const;
    // Whatever the elements hold now is what they have to hold.
    void accept() const;

    Parameter parameter;
    Layout layout;
    int elementSize;
    int objects;
    int rows; // as stored
    int columns;
    std::int32_t stride0;
    std::int32_t stride1;
    std::int32_t stride2;
    std::int32_t shift;
    char* base; // of element (0, 0) of object 0, where there is no table
    std::shared_ptr<Region> memory;
    std::shared_ptr<Region> table;

    int readRows() const { return parameter.transposed ? columns : rows; }
    int readColumns() const { return parameter.transposed ? rows : columns; }

private:
    template <class T>
    static T load(const char* address) {
        T value;
        std::memcpy(&value, address, sizeof value);
        return value;
    }
};

class Call {
public:
    // Memory is filled with noise. The destination takes the place of the source `inPlaceOf`, or of
    // the first elements of a longer vector.
    Call(const Function& function, const Sizes& sizes, const Placement& placement,
         std::uint64_t seed, std::string_view inPlaceOf = {});

    const Operand& operand(std::string_view name) const;
    std::vector<Operand>& operands() { return operands_; }
    const std::vector<Operand>& operands() const { return operands_; }
    const Operand* scratch() const;
    // The operand that is written last.
    const Operand& result() const;

    // Passes another value than that by which the memory was laid out.
    void claim(const std::string& size, int value) { sizes_[size] = value; }

    // Whether the elements of each operand's rows lie side by side, as the layout tells it.
    bool isContiguous() const;

    std::int32_t run(const Library& library);

    // The first element or other byte that is not what is expected, in words; empty if there is
    // none. NaNs match each other, or as bits; scratch may hold anything.
    enum class Nans { alike, asBits };
    std::string difference(Nans nans = Nans::alike) const;
    std::string describe() const;
    // Addresses and strides of all operands in memory.
    std::string whereabouts() const;

private:
    void place(const Placement& placement);
    Value valueOf(const Argument& argument) const;

    const Function& function_;
    Sizes sizes_;
    Placement placement_;
    std::uint64_t seed_;
    std::string library_;
    std::vector<Operand> operands_; // of the parameters that are no sizes, in their order
};

} // namespace harness
