// Trials of the tests that compare the library with a scalar model, bit by bit: one call in every
// variant of the library, on objects of which one, or all, are special.
#pragma once

#include "harness/call.h"
#include "harness/inputs.h"

#include "qorcore.h"
#include "qorm/types.h"

#include <functional>
#include <gtest/gtest.h>
#include <span>

namespace harness {

inline Sizes sizesOf(Size size, int count) {
    return {{"len", size.columns},
            {"widthHeight", size.columns},
            {"width", size.columns},
            {"height", size.rows},
            {"count", count}};
}

// Goes through the objects as a call does: in a run for each thread, which ends at the first object
// that fails. The result is the status of each run.
template <class DoObject>
std::vector<qorStatus> statusesOfRuns(int objects, int threads, const DoObject& doObject) {
    std::vector<qorStatus> statuses;
    for (int thread = 0, k = 0; thread < threads; ++thread) {
        const int end = k + objects / threads + (thread < objects % threads ? 1 : 0);
        qorStatus status = qorStatusOk;
        for (; k < end && status == qorStatusOk; ++k) status = doObject(k);
        statuses.push_back(status);
        k = end;
    }
    return statuses;
}

// A call answers with any failure of its runs.
inline bool isAnswer(qorStatus status, const std::vector<qorStatus>& ofRuns) {
    const auto occurrences = std::count(ofRuns.begin(), ofRuns.end(), status);
    return status == qorStatusOk ? occurrences == std::ssize(ofRuns) : occurrences > 0;
}

inline void moveBack(Operand& operand, int elements) {
    const int bytes = elements * operand.elementSize;
    if (operand.table) {
        operand.shift -= bytes;
    } else {
        operand.base -= bytes;
    }
}

// A family's test says how an input makes an object, and compares a call with its model.
template <class Making, Making* usual>
class Trials : public testing::TestWithParam<Function> {
protected:
    struct Trial {
        Size size;
        int count;
        const Placement& placement;
        Making* others = usual;
        Making* special = usual;
        int position = -1; // of the special object; by default one by chance, or all of them
        std::string_view inPlaceOf = {};
        std::function<void(Call&)> rearrange = [](Call&) {};
    };

    const Function& function = GetParam();

    virtual void setObject(const Call& call, int k, Making* input, Random& random) const = 0;
    virtual bool fails(const Call&, int /*k*/) const { return false; }
    virtual std::string faultOf(Call& call, const Library& library) const = 0;

    void SetUp() override { qorSetThreadCount(1); }

    void test(const Trial& trial, std::size_t firstLibrary = 0) {
        ++seed;
        for (const Library& library : std::span(libraries()).subspan(firstLibrary)) {
            Call call(function, sizesOf(trial.size, trial.count), trial.placement, seed,
                      trial.inPlaceOf);
            trial.rearrange(call);
            fill(call, trial);
            ASSERT_EQ(faultOf(call, library), "") << call.describe();
        }
    }

private:
    void fill(const Call& call, const Trial& trial) const {
        Random random(seed);
        const int last = function.array ? trial.count - 1 : 0;
        const bool allSpecial = trial.position < 0 && integer(random, 0, 1) == 1;
        const int position =
            trial.position < 0 ? integer(random, 0, last) : std::min(trial.position, last);
        for (int k = 0; k <= last; ++k) {
            const bool isSpecial = allSpecial || k == position;
            setObject(call, k, isSpecial ? trial.special : trial.others, random);
            // An object that fails hides those behind it, so one is enough.
            if (isSpecial && k != position && fails(call, k)) {
                setObject(call, k, trial.others, random);
            }
        }
    }

    static inline std::uint64_t seed = 0;
};

} // namespace harness
