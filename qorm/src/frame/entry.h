// The entry tier: checks the arguments in the order of the function's form, then chooses the tier
// that does the work. The forms stand as data beside their families.
#pragma once

#include "frame/operands.h"

#include <array>
#include <optional>

namespace qorm {

// One kind of argument check, over all groups of a call. The last two are the two halves of `stride`:
// those inside objects, and those between objects where there are many.
enum class Check { none, null, count, size, match, stride, shift, innerStride, strideOfMany };

using CheckOrder = std::array<Check, 6>;

// What an entry function needs to know of itself: the order of its checks, the measure of its work
// (of the sizes and the count in their argument order, in wrapping 32-bit arithmetic; single objects
// have a count of 1) and the smallest measures that go to the driver.
//
// A form may answer some calls itself, past the checks: it then has a member answer(groups...) that
// returns an optional status.
template <class Measure>
struct Form;

template <class... Sizes>
struct Form<std::uint32_t(Sizes...)> {
    CheckOrder checks;
    std::uint32_t (*measure)(Sizes...);
    std::int32_t contiguousThreshold;
    std::int32_t generalThreshold;
    bool alwaysGeneral = false;             // never takes its contiguous core
    bool fansOut = true;                    // else the driver is never called
    bool (*sizesMatch)(Sizes...) = nullptr; // for Check::match
};

// The sizes of a call and its count.
template <class... Groups>
auto sizesOf(const Groups&... groups) {
    const auto sizes = std::tuple_cat(groups.sizes()...);
    if constexpr ((std::is_same_v<Groups, Count> || ...))
        return sizes;
    else
        return std::tuple_cat(sizes, std::tuple(std::uint32_t{1}));
}

template <class Form, class... Groups>
qorStatus statusOf(Check check, const Form& form, const Groups&... groups) {
    switch (check) {
    case Check::null:
        return (groups.isNull() || ...) ? qorStatusNullPointer : qorStatusOk;
    case Check::count:
        return (groups.hasBadCount() || ...) ? qorStatusBadCount : qorStatusOk;
    case Check::size:
        return (groups.hasBadSize() || ...) ? qorStatusBadSize : qorStatusOk;
    case Check::match:
        if constexpr (requires { form.sizesMatch; }) {
            if (!std::apply(form.sizesMatch, sizesOf(groups...))) return qorStatusSizeMismatch;
        }
        return qorStatusOk;
    case Check::stride:
        return ((groups.hasBadStride0() || groups.hasBadInnerStride()) || ...) ? qorStatusBadStride
                                                                               : qorStatusOk;
    case Check::innerStride:
        return (groups.hasBadInnerStride() || ...) ? qorStatusBadStride : qorStatusOk;
    case Check::strideOfMany:
        return (groups.holdsMany() || ...) && (groups.hasBadStride0() || ...) ? qorStatusBadStride
                                                                              : qorStatusOk;
    case Check::shift:
        return (groups.hasBadShift() || ...) ? qorStatusBadShift : qorStatusOk;
    case Check::none:
        break;
    }
    return qorStatusOk;
}

template <class Form, class... Groups>
qorStatus firstFault(const Form& form, const Groups&... groups) {
    for (const Check check : form.checks) {
        if (const qorStatus status = statusOf(check, form, groups...)) return status;
    }
    return qorStatusOk;
}

template <class Form, class... Groups>
std::optional<qorStatus> answerOf(const Form& form, const Groups&... groups) {
    if constexpr (requires { form.answer(groups...); })
        return form.answer(groups...);
    else
        return std::nullopt;
}

// Hands a call to the core of its access pattern.
template <auto core, auto generalCore, class... Groups>
qorStatus callEither(const Groups&... groups) {
    if ((groups.isContiguous() && ...)) return callCore(core, groups.contiguous()...);
    return callCore(generalCore, groups...);
}

// Entry of a form on single objects, which never fans out.
template <auto core, auto generalCore, class Form, class... Groups>
qorStatus enterSingle(const Form& form, const Groups&... groups) {
    if (const qorStatus fault = firstFault(form, groups...)) return fault;
    if (const auto answer = answerOf(form, groups...)) return *answer;
    if (form.alwaysGeneral) return callCore(generalCore, groups...);
    return callEither<core, generalCore>(groups...);
}

// The same where one core serves all.
template <auto core, class Form, class... Groups>
qorStatus enterSingle(const Form& form, const Groups&... groups) {
    if (const qorStatus fault = firstFault(form, groups...)) return fault;
    if (const auto answer = answerOf(form, groups...)) return *answer;
    return callCore(core, groups...);
}

// Entry of a form on arrays.
template <auto core, auto generalCore, auto driver, class Form, class... Groups>
qorStatus enterArray(const Form& form, const Groups&... groups) {
    if (const qorStatus fault = firstFault(form, groups...)) return fault;
    if (const auto answer = answerOf(form, groups...)) return *answer;
    const std::uint32_t measure = std::apply(form.measure, sizesOf(groups...));
    const bool contiguous = (groups.isContiguous() && ...);
    const std::int32_t threshold = contiguous ? form.contiguousThreshold : form.generalThreshold;
    if (form.fansOut && static_cast<std::int32_t>(measure) >= threshold) {
        return call(driver, groups...);
    }
    return callEither<core, generalCore>(groups...);
}

// What an entry that does the work itself needs to know.
struct ChecksOnly {
    CheckOrder checks;
};

// Entry of a form without other tiers, which knows both kinds of rows in one.
template <class Run, class... Groups>
qorStatus enterAndRun(const ChecksOnly& form, const Run& run, const Groups&... groups) {
    if (const qorStatus fault = firstFault(form, groups...)) return fault;
    if ((groups.isContiguous() && ...)) return run(groups.contiguous()...);
    return run(groups...);
}

} // namespace qorm
