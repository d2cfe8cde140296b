// The entry tier: checks the arguments in the order of the function's form, then chooses the tier
// that does the work. The forms stand as data beside their families.
#pragma once

#include "frame/operands.h"

#include <array>

namespace qorm {

// One kind of argument check, over all groups of a call.
enum class Check { none, null, count, size, stride, shift };

using CheckOrder = std::array<Check, 5>;

// What an entry function needs to know of itself: the order of its checks, the measure of its work
// (of the sizes and the count in their argument order, in wrapping 32-bit arithmetic) and the
// smallest measures that go to the driver.
template <class Measure>
struct Form {
    CheckOrder checks;
    Measure* measure;
    std::int32_t contiguousThreshold;
    std::int32_t generalThreshold;
    bool alwaysGeneral = false; // never takes its contiguous core
};

template <class... Groups>
qorStatus statusOf(Check check, const Groups&... groups) {
    switch (check) {
    case Check::null:
        return (groups.isNull() || ...) ? qorStatusNullPointer : qorStatusOk;
    case Check::count:
        return (groups.hasBadCount() || ...) ? qorStatusBadCount : qorStatusOk;
    case Check::size:
        return (groups.hasBadSize() || ...) ? qorStatusBadSize : qorStatusOk;
    case Check::stride:
        return (groups.hasBadStride() || ...) ? qorStatusBadStride : qorStatusOk;
    case Check::shift:
        return (groups.hasBadShift() || ...) ? qorStatusBadShift : qorStatusOk;
    case Check::none:
        break;
    }
    return qorStatusOk;
}

template <class... Groups>
qorStatus firstFault(const CheckOrder& checks, const Groups&... groups) {
    for (const Check check : checks) {
        if (const qorStatus status = statusOf(check, groups...)) return status;
    }
    return qorStatusOk;
}

// Hands a call to the core of its access pattern.
template <auto core, auto generalCore, class... Groups>
qorStatus callCore(const Groups&... groups) {
    if ((groups.isContiguous() && ...)) return call(core, groups.contiguous()...);
    return call(generalCore, groups...);
}

// Entry of a form on single objects, which never fans out.
template <auto core, auto generalCore, class Form, class... Groups>
qorStatus enterSingle(const Form& form, const Groups&... groups) {
    if (const qorStatus fault = firstFault(form.checks, groups...)) return fault;
    if (form.alwaysGeneral) return call(generalCore, groups...);
    return callCore<core, generalCore>(groups...);
}

// Entry of a form on arrays.
template <auto core, auto generalCore, auto driver, class Form, class... Groups>
qorStatus enterArray(const Form& form, const Groups&... groups) {
    if (const qorStatus fault = firstFault(form.checks, groups...)) return fault;
    const std::uint32_t measure = std::apply(form.measure, std::tuple_cat(groups.sizes()...));
    const bool contiguous = (groups.isContiguous() && ...);
    const std::int32_t threshold = contiguous ? form.contiguousThreshold : form.generalThreshold;
    if (static_cast<std::int32_t>(measure) >= threshold) return call(driver, groups...);
    return callCore<core, generalCore>(groups...);
}

} // namespace qorm
