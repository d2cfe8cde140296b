// One walk over all operations that asks no model: all ways to the same result give the same bits.
// Ways are the layouts, wherever operands lie, single objects and arrays of them, entry functions,
// drivers and cores, numbers of threads, and the variants of the library. Every call is also held to
// write nothing but its result. QORM_SEED and QORM_SWEEP_ROUNDS choose other and more calls.
#include "harness/exceptions.h"
#include "harness/placements.h"
#include "harness/problem.h"
#include "harness/thread_count.h"

#include "qorm/types.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace harness;

std::uint64_t setting(const char* name, std::uint64_t otherwise) {
    const char* const text = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
    return text == nullptr ? otherwise : std::strtoull(text, nullptr, 0);
}

const std::uint64_t seed = setting("QORM_SEED", 7);

// All layouts of a shape, and of single objects of its arrays.
struct Group {
    std::string name;
    std::vector<Function> members;
    std::vector<Function> singles;
};

void PrintTo(const Group& group, std::ostream* out) {
    *out << group.name;
}

std::vector<Group> groups() {
    std::map<std::string, Group> byName;
    const auto nameOf = [](const Function& function, const std::string& shape) {
        return function.operation + '_' + shape + '_' + std::to_string(function.elementSize * 8);
    };
    for (const Function& function : allFunctions()) {
        const std::string name = nameOf(function, function.shape);
        byName[name].name = name;
        byName[name].members.push_back(function);
    }
    std::vector<Group> all;
    for (auto& [name, group] : byName) {
        const Function& function = group.members.front();
        std::string shape = function.shape;
        std::erase(shape, 'a');
        const auto single = byName.find(nameOf(function, shape));
        if (function.array && single != byName.end()) group.singles = single->second.members;
        all.push_back(group);
    }
    return all;
}

// The inverse of one element is the entry function's own work.
bool hasTiers(const Function& function, const Sizes& sizes) {
    return !function.isDirect() &&
           !(function.operation == "Invert" && sizes.at("widthHeight") == 1);
}

// What a call, or one for each object, has written.
struct Outcome {
    std::int32_t status = qorStatusOk;
    std::map<std::string, std::vector<std::uint64_t>> elements = {}; // of each operand, by objects
    std::set<const Exception*> exceptions = {};
    std::string alignment = {};
    std::string description = {};

    static bool holds(const Operand& operand) {
        return operand.parameter.isWritten() || operand.parameter.name == "DstIndex";
    }

    // All NaNs are one, but in moves.
    void add(const Call& call, int object, bool isMoved) {
        for (const Operand& operand : call.operands()) {
            if (!holds(operand)) continue;
            const bool isNumber = operand.parameter.kind != Parameter::indices && !isMoved;
            const auto addBits = [&]<class T, class Bits>(T number, Bits bits) {
                elements[operand.parameter.name].push_back(isNumber && std::isnan(number) ? ~0ULL
                                                                                          : bits);
            };
            operand.forEachElementOf(object, [&](int n, int i, int j) {
                if (operand.elementSize == 8)
                    addBits(operand.get<double>(n, i, j), operand.get<std::uint64_t>(n, i, j));
                else
                    addBits(operand.get<float>(n, i, j), operand.get<std::uint32_t>(n, i, j));
            });
        }
    }
};

class Sweep : public testing::TestWithParam<Group> {
protected:
    const Group& group = GetParam();
    const Function& function = group.members.front();
    Random random{seed ^ std::hash<std::string>()(group.name)};

    void begin(const Problem& problem) {
        problem_ = &problem;
        references_.clear();
    }

    // An entry function and its cores in all variants of the library, its driver in one.
    void compareTogether(const Function& entry, const Placement& placement) {
        compareEverywhere(entry, placement);
        if (!hasTiers(entry, problem_->sizes)) return;
        const Call call(entry, problem_->sizes, placement, 0);
        for (const Function& core : coresOf(entry, call.isContiguous())) {
            const bool isOfOtherSizes =
                core.name.ends_with("_com") && Way{entry, problem_->sizes, call}.hasUnrolledSize();
            if (!isOfOtherSizes) compareEverywhere(core, placement);
        }
        if (!entry.array) return;
        const ThreadCount threads(integer(random, 0, 1) == 0 ? 3 : 7);
        compareOn(anyLibrary(), driverOf(entry), placement);
    }

    // Behind the first object that fails nothing is done.
    void compareOneByOne(const Function& entry, const Placement& placement) {
        if (HasFailure()) return;
        const Library& library = anyLibrary();
        Outcome outcome;
        for (int n = 0; n < problem_->count(); ++n) {
            if (outcome.status == qorStatusOk)
                run(outcome, library, entry, placement, n, 1);
            else
                outcome.add(problem_->operands(), n, problem_->isMoved());
        }
        compare(outcome);
    }

    // One failure is enough.
    void compareOn(const Library& library, const Function& tier, const Placement& placement) {
        if (HasFailure()) return;
        Outcome outcome;
        run(outcome, library, tier, placement, 0, problem_->count());
        compare(outcome);
    }

    const Library& anyLibrary() { return libraries()[random.below(libraries().size())]; }

private:
    using Order = std::pair<std::set<const Exception*>, std::string>;

    void compareEverywhere(const Function& tier, const Placement& placement) {
        for (const Library& library : libraries()) compareOn(library, tier, placement);
    }

    // One call on the problem's objects from `first` on.
    void run(Outcome& outcome, const Library& library, const Function& tier,
             const Placement& placement, int first, int count) {
        Sizes sizes = problem_->sizes;
        sizes["count"] = count;
        Call call(tier, sizes, placement, problem_->seed);
        problem_->pose(call, first);
        const Way way = {tier, sizes, call};
        for (const Exception& exception : exceptions) {
            const bool maySee = problem_->hasSpecialNumbers || !exception.onlySpecialNumbers;
            if (!maySee || !exception.covers(way)) continue;
            outcome.exceptions.insert(&exception);
            if (exception.byAlignment) outcome.alignment = way.alignment();
        }
        outcome.status = call.run(library);
        outcome.description = call.describe() + "; " + call.whereabouts();
        for (int n = 0; n < count; ++n) outcome.add(call, n, problem_->isMoved());
        for (const Operand& operand : call.operands()) {
            if (Outcome::holds(operand)) operand.accept();
        }
        EXPECT_EQ(call.difference(Call::Nans::asBits), "") << outcome.description;
        EXPECT_TRUE(outcome.status == qorStatusOk || problem_->hasSpecialNumbers)
            << "status " << outcome.status << " of " << outcome.description;
    }

    // Holds what came out against what first came out in the same order of sums and tests. Threads
    // go on when another one fails; an iteration that does not settle leaves anything behind.
    void compare(const Outcome& outcome) {
        const auto [found, isFirst] =
            references_.try_emplace(Order(outcome.exceptions, outcome.alignment), outcome);
        if (isFirst) return;
        const Outcome& other = found->second;
        ASSERT_EQ(outcome.status, other.status) << outcome.description << "\n" << other.description;
        if (outcome.status != qorStatusOk && qorGetThreadCount() > 1) return;
        if (outcome.status == qorStatusNoConvergence) return;
        for (const auto& [name, bits] : outcome.elements) {
            const std::vector<std::uint64_t>& otherBits = other.elements.at(name);
            const auto [mine, others] =
                std::mismatch(bits.begin(), bits.end(), otherBits.begin(), otherBits.end());
            if (mine == bits.end()) continue;
            const auto k = static_cast<int>(mine - bits.begin());
            const Operand& operand = problem_->operands().operand(name);
            const int columns = operand.readColumns();
            const int size = operand.readRows() * columns;
            FAIL() << name << '[' << k / size << "][" << k % size / columns << "][" << k % columns
                   << "] is 0x" << std::hex << *mine << " in\n"
                   << outcome.description << "\nand 0x" << *others << " in\n"
                   << other.description;
        }
    }

    const testing::ScopedTrace trace_{__FILE__, __LINE__, "QORM_SEED=" + std::to_string(seed)};
    const Problem* problem_ = nullptr;
    std::map<Order, Outcome> references_;
};

TEST_P(Sweep, allWaysAgree) {
    const ThreadCount threads(1);
    for (std::uint64_t round = 0; round < setting("QORM_SWEEP_ROUNDS", 16); ++round) {
        const Problem problem(function, anySizes(function, random), round % 2 == 1, random());
        begin(problem);
        for (const Function& member : group.members) {
            if (!isCallable(member, problem.sizes)) continue;
            compareTogether(member, anyPlacement(true, random));
            compareTogether(member, anyPlacement(false, random));
            if (member.array) compareOneByOne(member, anyPlacement(round % 4 < 2, random));
        }
        for (const Function& single : group.singles) {
            if (isCallable(single, problem.sizes))
                compareOneByOne(single, anyPlacement(round % 4 < 2, random));
        }
    }
}

TEST_P(Sweep, threadsAgreeAboveThresholds) {
    if (!function.array || function.isDirect()) return;
    const Problem problem(function, sizesOfMany(function), false, random());
    begin(problem);
    const Function& member = group.members[random.below(group.members.size())];
    const Placement placement = anyPlacement(integer(random, 0, 1) == 0, random);
    const Library& library = anyLibrary();
    for (const int count : {1, 2, 3, 7}) {
        const ThreadCount threads(count);
        compareOn(library, member, placement);
    }
}

TEST_P(Sweep, offsetsMayExceed32Bits) {
    if (sizeof(void*) == 4) GTEST_SKIP();
    const ThreadCount threads(1);
    const auto extent = [&] { return integer(random, 3, 6); };
    const Sizes sizes = sizesOf(function, extent(), extent(), extent(), extent());
    const Problem problem(function, sizes, false, random());
    begin(problem);
    for (const Function& member : group.members) {
        if (!isCallable(member, problem.sizes)) continue;
        compareTogether(member, packed);
        for (const Placement& placement : farPlacements(member.elementSize)) {
            compareTogether(member, placement);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Sweep, testing::ValuesIn(groups()),
                         [](const auto& tested) { return tested.param.name; });

} // namespace
