#include "harness/call.h"

#include "qorcore.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace harness {
namespace {

void setStrides(Operand& operand, const Placement& placement, bool withGaps, int sharers) {
    const std::int32_t size = operand.elementSize;
    if (placement.overlapping) {
        operand.stride0 = operand.stride1 = operand.stride2 = size;
        return;
    }
    const auto gap = [&](int elements) { return withGaps ? elements * size : 0; };
    struct Axis {
        std::int32_t& stride;
        int extent;
        int gap;
    };
    const Axis objects = {operand.stride0, operand.objects, gap(placement.objectGap)};
    const Axis rows = {operand.stride1, operand.rows, gap(placement.rowGap)};
    const Axis elements = {operand.stride2, operand.columns, gap(placement.elementGap)};
    const Placement::Order order = operand.parameter.kind == Parameter::result
                                       ? placement.resultOrder.value_or(placement.order)
                                       : placement.order;
    const std::array<Axis, 3> innermostFirst =
        order == Placement::byRows       ? std::array{elements, rows, objects}
        : order == Placement::byColumns  ? std::array{rows, elements, objects}
        : order == Placement::byPosition ? std::array{objects, elements, rows}
                                         : std::array{objects, rows, elements};
    std::int64_t inner =
        placement.sharing == Placement::interleavedElements ? sharers * size : size;
    for (const Axis& axis : innermostFirst) {
        axis.stride = static_cast<std::int32_t>(inner + axis.gap);
        inner = std::int64_t{axis.stride} * axis.extent;
    }
}

std::ptrdiff_t lengthOf(const Placement::Step& step, const Operand& operand) {
    return std::ptrdiff_t{step.objects} * operand.stride0 +
           std::ptrdiff_t{step.rows} * operand.stride1 +
           std::ptrdiff_t{step.elements} * operand.stride2;
}

// Sets strides. The result is where each operand begins in the block that it shares with others.
std::vector<std::ptrdiff_t> arrange(const std::vector<Operand*>& operands,
                                    const Placement& placement) {
    std::vector<std::ptrdiff_t> offsets;
    const int sharers = static_cast<int>(operands.size());
    const Operand* source = nullptr;
    std::int32_t structure = 0;
    for (int k = 0; k < sharers; ++k) {
        Operand& operand = *operands[static_cast<std::size_t>(k)];
        const bool withGaps = placement.gapsOnlyIn < 0 || placement.gapsOnlyIn == k;
        setStrides(operand, operand.parameter.isPlain() ? Placement{} : placement, withGaps,
                   sharers);
        if (operand.parameter.name == placement.destinationOn) source = &operand;
        offsets.push_back(placement.sharing == Placement::interleavedElements
                              ? k * operand.elementSize
                              : structure);
        if (placement.sharing == Placement::interleavedObjects) structure += operand.stride0;
    }
    if (placement.sharing == Placement::interleavedObjects) {
        for (Operand* operand : operands) operand->stride0 = structure;
    }
    if (source == nullptr) return offsets;
    const std::ptrdiff_t distance = lengthOf(placement.behindBy, *source);
    for (std::size_t k = 0; k < operands.size(); ++k) {
        if (operands[k]->parameter.isWritten()) {
            offsets[k] = std::max<std::ptrdiff_t>(0, distance);
        } else if (operands[k] == source) {
            offsets[k] = std::max<std::ptrdiff_t>(0, -distance);
        }
    }
    return offsets;
}

std::ptrdiff_t spanOf(const Operand& operand) {
    return std::ptrdiff_t{operand.objects - 1} * operand.stride0 +
           std::ptrdiff_t{operand.rows - 1} * operand.stride1 +
           std::ptrdiff_t{operand.columns - 1} * operand.stride2 + operand.elementSize;
}

// Table entries, in the order in which they stand in the table.
void setTable(Operand& operand, bool scattered, Random& random) {
    std::vector<char*> entries;
    if (operand.layout == Layout::L) {
        for (int n = 0; n < operand.objects; ++n) {
            entries.push_back(operand.base + std::ptrdiff_t{n} * operand.stride0);
        }
    } else {
        for (int i = 0; i < operand.rows; ++i) {
            for (int j = 0; j < operand.columns; ++j) {
                entries.push_back(operand.base + std::ptrdiff_t{i} * operand.stride1 +
                                  std::ptrdiff_t{j} * operand.stride2);
            }
        }
    }
    if (scattered) {
        for (std::size_t k = entries.size(); k > 1; --k) {
            std::swap(entries[k - 1], entries[random.below(k)]);
        }
    }
    for (char*& entry : entries) entry -= operand.shift;
    const std::size_t bytes = entries.size() * sizeof(char*);
    operand.table = Region::take(static_cast<std::ptrdiff_t>(bytes), false, random());
    std::memcpy(operand.table->begin(), entries.data(), bytes);
    std::memcpy(operand.table->imageOf(operand.table->begin()), entries.data(), bytes);
}

template <class T>
bool isNan(const char* address) {
    T value;
    std::memcpy(&value, address, sizeof value);
    return std::isnan(value);
}

std::string bitsAt(const char* address, int bytes) {
    std::ostringstream text;
    text << "0x" << std::hex << std::setfill('0');
    for (int k = bytes - 1; k >= 0; --k) {
        text << std::setw(2) << static_cast<unsigned>(static_cast<unsigned char>(address[k]));
    }
    return text.str();
}

} // namespace

char* Operand::address(int n, int i, int j) const {
    if (parameter.transposed) std::swap(i, j);
    if (!parameter.array) n = 0;
    const std::ptrdiff_t object = std::ptrdiff_t{n} * stride0;
    const std::ptrdiff_t position = std::ptrdiff_t{i} * stride1 + std::ptrdiff_t{j} * stride2;
    if (!table) return base + object + position;
    const bool perObject = layout == Layout::L;
    char* entry;
    std::memcpy(&entry,
                table->begin() +
                    sizeof entry * static_cast<std::size_t>(perObject ? n : i * columns + j),
                sizeof entry);
    return entry + shift + (perObject ? position : object);
}

void Operand::setNumber(int n, int i, int j, double value) const {
    if (elementSize == sizeof(float))
        set(n, i, j, static_cast<float>(value));
    else
        set(n, i, j, value);
}

bool Operand::isUntouched(int n) const {
    bool untouched = true;
    forEachElementOf(n, [&](int, int i, int j) {
        const char* live = address(n, i, j);
        untouched &= std::equal(live, live + elementSize, memory->imageOf(live));
    });
    return untouched;
}

void Operand::accept() const {
    forEachElement([&](int n, int i, int j) {
        const char* live = address(n, i, j);
        std::copy(live, live + elementSize, memory->imageOf(live));
    });
}

Call::Call(const Function& function, const Sizes& sizes, const Placement& placement,
           std::uint64_t seed, std::string_view inPlaceOf)
    : function_(function), sizes_(sizes), placement_(placement), seed_(seed) {
    for (const Parameter& parameter : function.parameters) {
        if (parameter.kind == Parameter::size) continue;
        Operand operand{};
        operand.parameter = parameter;
        operand.elementSize = function.elementSize;
        operand.objects = parameter.array ? sizes.at("count") : 1;
        operand.rows = extentOf(parameter.rows, sizes);
        operand.columns = extentOf(parameter.columns, sizes);
        operand.layout = parameter.isPlain() ? Layout::S : function.layoutOf(parameter);
        if (parameter.kind == Parameter::indices) operand.elementSize = sizeof(std::int32_t);
        if (parameter.kind == Parameter::numberedScratch) { // in bytes
            operand.columns = operand.columns * operand.elementSize + 4;
            operand.elementSize = 1;
        }
        operands_.push_back(operand);
    }
    place(placement);
    for (Operand& operand : operands_) {
        if (operand.parameter.kind != Parameter::result || inPlaceOf.empty()) continue;
        const Operand own = operand;
        operand = this->operand(inPlaceOf);
        operand.parameter = own.parameter;
        operand.rows = own.rows;
        operand.columns = own.columns;
    }
}

// Operands lie in blocks of their own, or interleaved in one: an array of structures. The
// destination may lie in the block of a source.
void Call::place(const Placement& placement) {
    Random random(seed_);
    std::vector<Operand*> matrices;
    for (Operand& operand : operands_) {
        const bool isOnSource = operand.parameter.isWritten() && !placement.destinationOn.empty();
        if (!operand.parameter.isPlain() || isOnSource) matrices.push_back(&operand);
    }
    const auto take = [&](std::ptrdiff_t bytes) {
        return Region::take(bytes + placement.misalignment,
                            placement.atFront || placement.misalignment > 0, random());
    };
    const std::vector<std::ptrdiff_t> offsets = arrange(matrices, placement);
    const auto isSharing = [&](const Operand& operand) {
        const bool overlaps =
            operand.parameter.isWritten() || operand.parameter.name == placement.destinationOn;
        return placement.sharing != Placement::apart ||
               (overlaps && !placement.destinationOn.empty());
    };
    std::ptrdiff_t most = 0;
    for (std::size_t k = 0; k < matrices.size(); ++k) {
        if (isSharing(*matrices[k])) most = std::max(most, offsets[k] + spanOf(*matrices[k]));
    }
    const auto shared = most > 0 ? take(most) : nullptr;
    for (std::size_t k = 0; k < matrices.size(); ++k) {
        Operand& operand = *matrices[k];
        operand.memory = isSharing(operand) ? shared : take(spanOf(operand));
        operand.base = operand.memory->begin() + placement.misalignment + offsets[k];
        if (operand.layout == Layout::S) continue;
        operand.shift = placement.shift * operand.elementSize;
        setTable(operand, placement.scattered, random);
    }
    for (Operand& operand : operands_) {
        if (operand.memory) continue;
        setStrides(operand, {}, false, 1);
        operand.memory = take(spanOf(operand));
        operand.base = operand.memory->begin() + placement.misalignment;
    }
}

const Operand& Call::operand(std::string_view name) const {
    return *std::find_if(operands_.begin(), operands_.end(),
                         [&](const Operand& o) { return o.parameter.name == name; });
}

const Operand* Call::scratch() const {
    const auto found = std::find_if(operands_.begin(), operands_.end(),
                                    [](const Operand& o) { return o.parameter.isScratch(); });
    return found == operands_.end() ? nullptr : &*found;
}

const Operand& Call::result() const {
    return *std::find_if(operands_.rbegin(), operands_.rend(),
                         [](const Operand& o) { return o.parameter.isWritten(); });
}

Value Call::valueOf(const Argument& argument) const {
    if (argument.meaning == Argument::count || argument.meaning == Argument::size) {
        return {.number = sizes_.at(argument.name)};
    }
    const Operand& operand = this->operand(function_.parameters[argument.parameter].name);
    switch (argument.meaning) {
    case Argument::stride0:
        return {.number = operand.stride0};
    case Argument::stride1:
        return {.number = operand.stride1};
    case Argument::stride2:
        return {.number = operand.stride2};
    case Argument::shift:
        return {.number = operand.shift};
    case Argument::value: {
        Value value = {};
        std::memcpy(&value, operand.base, static_cast<std::size_t>(operand.elementSize));
        return value;
    }
    default:
        return {.pointer = operand.table ? operand.table->begin() : operand.base};
    }
}

bool Call::isContiguous() const {
    return std::all_of(operands_.begin(), operands_.end(), [](const Operand& operand) {
        return operand.layout != Layout::P && operand.stride2 == operand.elementSize;
    });
}

std::int32_t Call::run(const Library& library) {
    library_ = library.path();
    std::vector<Value> values;
    for (const Argument& argument : function_.arguments) values.push_back(valueOf(argument));
    return library.call(function_, values, describe());
}

std::string Call::difference(Nans nans) const {
    std::ostringstream text;
    for (const Operand& operand : operands_) {
        if (operand.parameter.isScratch()) {
            operand.accept();
            continue;
        }
        if (operand.memory->firstDifference() == nullptr) continue;
        operand.forEachElement([&](int n, int i, int j) {
            const char* live = operand.address(n, i, j);
            char* image = operand.memory->imageOf(live);
            const int size = operand.elementSize;
            const bool bothNan = nans == Nans::alike &&
                                 operand.parameter.kind != Parameter::indices &&
                                 (size == 4 ? isNan<float>(live) && isNan<float>(image)
                                            : isNan<double>(live) && isNan<double>(image));
            if (bothNan) {
                std::copy(live, live + size, image);
            } else if (text.str().empty() && !std::equal(live, live + size, image)) {
                text << operand.parameter.name << '[' << n << "][" << i << "][" << j << "] got "
                     << bitsAt(live, size) << " want " << bitsAt(image, size);
            }
        });
    }
    if (!text.str().empty()) return text.str();
    for (const Operand& operand : operands_) {
        for (const Region* region : {operand.memory.get(), operand.table.get()}) {
            const char* byte = region == nullptr ? nullptr : region->firstDifference();
            if (byte == nullptr) continue;
            text << "a byte outside of all elements was written, " << byte - region->begin()
                 << " from the first byte of " << operand.parameter.name;
            return text.str();
        }
    }
    return {};
}

std::string Call::describe() const {
    std::ostringstream text;
    text << function_ << ' ' << sizes_ << ", " << placement_.name << ", seed " << seed_ << ", "
         << threads_omp_of_n_qor << " threads, " << library_;
    if (!placement_.destinationOn.empty()) {
        const Placement::Step& step = placement_.behindBy;
        text << ", behind " << placement_.destinationOn << " by " << step.objects << " objects, "
             << step.rows << " rows, " << step.elements << " elements";
    }
    return text.str();
}

std::string Call::whereabouts() const {
    std::ostringstream text;
    for (const Operand& operand : operands_) {
        text << operand.parameter.name << " at "
             << reinterpret_cast<std::uintptr_t>(operand.address(0, 0, 0)) % 64
             << " mod 64, strides " << operand.stride0 << ", " << operand.stride1 << ", "
             << operand.stride2 << ", shift " << operand.shift << "; ";
    }
    return text.str();
}

} // namespace harness
