// Calls that a fuzzer's bytes choose: any entry function, on operands that lie anywhere, with
// numbers of all kinds, or with faulty arguments.
//
// Only bytes that a call may touch are open to AddressSanitizer, so it finds accesses between the
// elements of an operand as well as around them. With faulty arguments nothing is open.
#include "harness/call.h"
#include "harness/inputs.h"
#include "harness/thread_count.h"

#include "qorm/types.h"

#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <iostream>
#include <sanitizer/asan_interface.h>

namespace {

using namespace harness;
using Bytes = FuzzedDataProvider;

constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();

std::string runningCall;

void require(bool holds, const std::string& fault) {
    if (holds) return;
    std::cerr << fault << " in " << runningCall << '\n';
    std::abort();
}

// Opened by its path alone: the harness's own list of libraries comes with handlers of signals,
// which would keep these from the fuzzer.
const Library& library() {
    static const Library baseline(libraryPaths().front());
    return baseline;
}

// The memory of a call, poisoned until the end of the scope.
class ClosedMemory {
public:
    explicit ClosedMemory(const Call& call) {
        for (const Operand& operand : call.operands()) {
            if (operand.parameter.kind == Parameter::value) continue; // read by the caller
            const char* end = operand.memory->begin();
            operand.forEachElement([&](int n, int i, int j) {
                end = std::max<const char*>(end, operand.address(n, i, j) + operand.elementSize);
            });
            close(operand.memory->begin(), end);
            if (operand.table) close(operand.table->begin(), endOfTable(operand));
        }
    }
    ~ClosedMemory() {
        for (const auto& [begin, bytes] : closed_) ASAN_UNPOISON_MEMORY_REGION(begin, bytes);
    }
    ClosedMemory(const ClosedMemory&) = delete;
    ClosedMemory& operator=(const ClosedMemory&) = delete;

    static void open(const Operand& operand) {
        if (operand.table) {
            const char* const begin = operand.table->begin();
            ASAN_UNPOISON_MEMORY_REGION(begin, endOfTable(operand) - begin);
        }
        operand.forEachElement([&](int n, int i, int j) {
            ASAN_UNPOISON_MEMORY_REGION(operand.address(n, i, j), operand.elementSize);
        });
    }

private:
    static const char* endOfTable(const Operand& operand) {
        const int entries =
            operand.layout == Layout::L ? operand.objects : operand.rows * operand.columns;
        return operand.table->begin() + sizeof(char*) * static_cast<std::size_t>(entries);
    }

    void close(const char* begin, const char* end) {
        constexpr std::ptrdiff_t margin = 128;
        closed_.emplace_back(begin - margin, end - begin + 2 * margin);
        ASAN_POISON_MEMORY_REGION(closed_.back().first, closed_.back().second);
    }

    std::vector<std::pair<const char*, std::size_t>> closed_;
};

Sizes anySizes(const Function& function, Bytes& bytes) {
    const bool isCostly = contains("Det Invert EigenValuesSym EigenValuesVectorsSym", // n^3 to n^5
                                   function.operation);
    const int largest = function.hasSize("len") ? 70 : isCostly ? 9 : 20;
    const auto extent = [&] {
        return bytes.ConsumeIntegralInRange(1, bytes.ConsumeBool() ? largest : 8);
    };
    const int rows = extent();
    const bool isSquare = bytes.ConsumeBool();
    const int columns = isSquare ? rows : extent();
    const int inner = isSquare ? rows : extent();
    const int count = bytes.ConsumeIntegralInRange(1, std::clamp(2000 / (rows * columns), 3, 80));
    if (function.hasSize("src1Width")) return productSizes(function, rows, inner, columns, count);
    const bool isUpright = function.operation.starts_with("QR");
    return {{"len", columns},
            {"widthHeight", columns},
            {"width", isUpright ? std::min(rows, columns) : columns},
            {"height", isUpright ? std::max(rows, columns) : rows},
            {"count", count}};
}

Placement anyPlacement(const Function& function, Bytes& bytes) {
    const auto sometimes = [&](int most) {
        return bytes.ConsumeBool() ? bytes.ConsumeIntegralInRange(0, most) : 0;
    };
    const auto order = [&] { return static_cast<Placement::Order>(sometimes(3)); };
    Placement placement = {.name = "as the fuzzer chose", .order = order()};
    if (bytes.ConsumeBool()) placement.resultOrder = order();
    placement.elementGap = sometimes(2);
    placement.rowGap = sometimes(3);
    placement.objectGap = sometimes(5);
    placement.gapsOnlyIn = sometimes(3) - 1;
    placement.overlapping = sometimes(8) == 8;
    placement.scattered = bytes.ConsumeBool();
    placement.shift = sometimes(bytes.ConsumeBool() ? highest / function.elementSize : 9);
    placement.misalignment = sometimes(24);
    placement.atFront = bytes.ConsumeBool();
    placement.sharing = static_cast<Placement::Sharing>(sometimes(2));
    if (placement.sharing != Placement::apart) return placement;
    const auto k = bytes.ConsumeIntegralInRange<std::size_t>(0, function.parameters.size() - 1);
    if (function.parameters[k].kind == Parameter::source) {
        placement.destinationOn = function.parameters[k].name;
        const auto step = [&] { return bytes.ConsumeIntegralInRange(-2, 2); };
        placement.behindBy = {.objects = step(), .rows = step(), .elements = step()};
    }
    return placement;
}

void setNumbers(const Function& function, const Call& call, Bytes& bytes) {
    Random random(bytes.ConsumeIntegral<std::uint16_t>());
    const auto mix = bytes.ConsumeIntegral<std::uint8_t>();
    const bool isRegular = bytes.ConsumeBool();
    for (const Operand& operand : call.operands()) {
        const auto kind = operand.parameter.kind;
        operand.forEachElement([&](int n, int i, int j) {
            if (operand.parameter.name == "SrcIndex") {
                operand.set<std::int32_t>(n, i, j, integer(random, 0, operand.columns - 1));
            } else if (kind == Parameter::source && isRegular) {
                operand.setNumber(n, i, j, uniform(random) + (i == j ? operand.columns + 1 : 0));
            } else if (kind == Parameter::source || kind == Parameter::value) {
                withType(function,
                         [&]<class T>(T) { operand.set(n, i, j, mixedValue<T>(random, mix)); });
            }
        });
    }
}

// Strides over a single object, row or element lead nowhere, however large they are.
void setIdleStrides(Call& call, Bytes& bytes) {
    for (Operand& operand : call.operands()) {
        const auto set = [&](std::int32_t& stride, int extent) {
            if (operand.parameter.isPlain() || extent > 1 || !bytes.ConsumeBool()) return;
            const std::int32_t size = operand.elementSize;
            stride = size * bytes.ConsumeIntegralInRange(1, highest / size);
        };
        set(operand.stride0, operand.objects);
        set(operand.stride1, operand.rows);
        set(operand.stride2, operand.columns);
    }
}

bool isFaultOfArguments(qorStatus status) {
    const qorStatus ofArguments[] = {qorStatusNullPointer,  qorStatusBadSize,
                                     qorStatusSizeMismatch, qorStatusBadCount,
                                     qorStatusBadStride,    qorStatusBadShift};
    return std::count(std::begin(ofArguments), std::end(ofArguments), status) > 0;
}

void callFaultless(Call& call) {
    qorStatus status = qorStatusOk;
    {
        const ClosedMemory memory(call);
        for (const Operand& operand : call.operands()) ClosedMemory::open(operand);
        status = call.run(library());
    }
    require(!isFaultOfArguments(status), "status " + std::to_string(status));
    for (const Operand& operand : call.operands()) {
        if (operand.parameter.isWritten() || operand.parameter.name == "DstIndex") operand.accept();
    }
    const std::string difference = call.difference();
    require(difference.empty(), difference);
}

// The status that a fault of an argument gives; none if the argument has no faulty values, or is
// not tested in every call.
qorStatus faultOf(const Function& function, const Argument& argument) {
    switch (argument.meaning) {
    case Argument::pointer:
        return qorStatusNullPointer;
    case Argument::size:
        return qorStatusBadSize;
    case Argument::count:
        return qorStatusBadCount;
    case Argument::shift:
        return qorStatusBadShift;
    case Argument::value:
        return qorStatusOk;
    case Argument::stride0:
        if (contains("Copy LoadIdentity", function.operation)) return qorStatusOk;
        [[fallthrough]];
    default:
        return qorStatusBadStride;
    }
}

std::int32_t anyNumber(Bytes& bytes) {
    const std::int32_t edges[] = {0, 1, -1, 2, 3, 4, 8, -4, -8, highest, highest - 7, lowest};
    return bytes.ConsumeBool() ? bytes.PickValueInArray(edges)
                               : bytes.ConsumeIntegral<std::int32_t>();
}

// A number that fails the test of its argument: no odd number is a stride or a shift.
std::int32_t faultyNumber(const Argument& argument, Bytes& bytes) {
    const std::int32_t number = anyNumber(bytes);
    const bool isExtent = argument.meaning == Argument::size || argument.meaning == Argument::count;
    if (isExtent) return number > 0 ? -number : number;
    return number < 0 ? number : number | 1;
}

void pass(std::int32_t number, void* pointer, const Function& function, const Argument& argument,
          Call& call) {
    if (argument.meaning == Argument::size || argument.meaning == Argument::count) {
        call.claim(argument.name, number);
        return;
    }
    const std::string& name = function.parameters[argument.parameter].name;
    Operand& operand = *std::find_if(call.operands().begin(), call.operands().end(),
                                     [&](const Operand& o) { return o.parameter.name == name; });
    switch (argument.meaning) {
    case Argument::pointer:
        operand.table.reset();
        operand.base = static_cast<char*>(pointer);
        break;
    case Argument::stride0:
        operand.stride0 = number;
        break;
    case Argument::stride1:
        operand.stride1 = number;
        break;
    case Argument::stride2:
        operand.stride2 = number;
        break;
    case Argument::shift:
        operand.shift = number;
        break;
    default: // a value, which has no faults
        break;
    }
}

// One argument has a fault, and some others may have anything.
void callFaulty(const Function& function, Call& call, Bytes& bytes) {
    const auto anyArgument = [&]() -> const Argument& {
        return function
            .arguments[bytes.ConsumeIntegralInRange<std::size_t>(0, function.arguments.size() - 1)];
    };
    const Argument& faulty = anyArgument();
    const qorStatus fault = faultOf(function, faulty);
    if (fault == qorStatusOk) return;

    std::vector<std::shared_ptr<Region>> regions;
    for (const Operand& operand : call.operands()) {
        for (const auto& region : {operand.memory, operand.table}) {
            if (region) regions.push_back(region);
        }
    }
    qorStatus status = qorStatusOk;
    const int others = bytes.ConsumeIntegralInRange(0, 3);
    {
        const ClosedMemory memory(call);
        const auto set = [&](const Argument& argument, std::int32_t number, void* pointer) {
            pass(number, pointer, function, argument, call);
            runningCall += ", " + argument.name + " = " + std::to_string(number);
        };
        for (int k = 0; k < others; ++k) {
            const Argument& other = anyArgument();
            if (other.meaning == Argument::value) continue;
            set(other, anyNumber(bytes), bytes.ConsumeBool() ? inaccessible() : nullptr);
        }
        set(faulty, faultyNumber(faulty, bytes), nullptr);
        status = call.run(library());
    }
    require(others == 0 ? status == fault : isFaultOfArguments(status),
            "status " + std::to_string(status));
    for (const auto& region : regions) {
        require(region->firstDifference() == nullptr, "memory was written");
    }
}

} // namespace

// Sanitizers call these before they report.
extern "C" void __asan_on_error() {
    std::cerr << "in " << runningCall << '\n';
}
extern "C" void __ubsan_on_report() {
    std::cerr << "in " << runningCall << '\n';
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    library();
    allFunctions();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    const Function& function =
        allFunctions()[bytes.ConsumeIntegralInRange<std::size_t>(0, allFunctions().size() - 1)];
    const Sizes sizes = anySizes(function, bytes);
    if (!isCallable(function, sizes)) return 0;
    Call call(function, sizes, anyPlacement(function, bytes),
              bytes.ConsumeIntegral<std::uint8_t>());
    setNumbers(function, call, bytes);
    setIdleStrides(call, bytes);
    const ThreadCount threads(bytes.ConsumeIntegralInRange(1, 3));
    runningCall = call.describe() + "; " + call.whereabouts();
    if (bytes.ConsumeBool())
        callFaulty(function, call, bytes);
    else
        callFaultless(call);
    return 0;
}
