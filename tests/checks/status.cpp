// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/checks.h"
#include "checks/parallel_sizes.h"
#include "support/call.h"
#include "support/thread_count.h"

#include <algorithm>
#include <climits>
#include <map>

namespace lxpm::test {

namespace {

struct Fault {
    std::size_t parameter;
    Argument value;
    Check check;
};

std::vector<Argument> badValues(ParameterKind kind, int elementSize) {
    switch (kind) {
    case ParameterKind::Pointer:
        return {static_cast<const void *>(nullptr)};
    case ParameterKind::Count:
    case ParameterKind::Size:
        return {0, -1, INT_MIN};
    case ParameterKind::Stride:
    case ParameterKind::LateStride:
        // None; backwards; not a multiple of the element size, below and above it; both; the value whose negative
        // does not exist.
        return {0, -elementSize, elementSize / 2, elementSize + elementSize / 2, 1, -1, INT_MIN};
    case ParameterKind::Offset:
        return {-elementSize, -2 * elementSize, elementSize / 2, 1, -1, INT_MIN};
    case ParameterKind::Value:
        break;
    }
    return {};
}

std::vector<Fault> faultsOf(const Model &model, const Shape &shape) {
    const std::vector<Parameter> parameters = parametersOf(model);
    std::vector<Fault> faults;
    for (std::size_t index = 0; index < parameters.size(); ++index) {
        const std::optional<Check> check = checkOf(parameters[index].kind);
        for (const Argument &value : badValues(parameters[index].kind, sizeOf(model.type))) {
            faults.push_back({index, value, *check});
        }
        if (parameters[index].kind == ParameterKind::Size && model.mustAgree(parameters[index].size)) {
            for (const int value : {shape[parameters[index].size] + 1, shape[parameters[index].size] - 1, INT_MAX}) {
                faults.push_back({index, value, Check::SizeMatch});
            }
        }
        if (parameters[index].kind == ParameterKind::Size && model.notLarger) {
            const auto [size, limit] = *model.notLarger;
            if (parameters[index].size == size) {
                faults.push_back({index, shape[limit] + 1, Check::SizeMatch});
                faults.push_back({index, INT_MAX, Check::SizeMatch});
            } else if (parameters[index].size == limit && shape[size] > 1) {
                faults.push_back({index, shape[size] - 1, Check::SizeMatch});
            }
        }
    }
    return faults;
}

/// A valid call that faults are put into.
class FaultyCall {
public:
    FaultyCall(const Export &item, const Shape &shape, int count, Report &report)
        : export_(item), call_(item, shape, count, {Placement{.shuffle = 5, .ptrOffset = 2}}), report_(report) {
        call_.fill(distinctValues(item.model.type));
        call_.expectUnchanged();
        valid_ = call_.arguments();
    }

    /// No pointer leads to memory that may be touched, the pointers in pointer arrays included.
    void makeUntouchable() {
        const std::vector<Parameter> parameters = parametersOf(export_.model);
        for (std::size_t index = 0; index < parameters.size(); ++index) {
            if (parameters[index].kind == ParameterKind::Pointer) {
                valid_[index] = call_.untouchable();
            }
        }
    }

    void verify(const std::vector<Fault> &faults) {
        const auto earlier = [this](const Fault &a, const Fault &b) { return rankOf(a) < rankOf(b); };
        verify(faults, statusOf(std::min_element(faults.begin(), faults.end(), earlier)->check));
    }

private:
    std::ptrdiff_t rankOf(const Fault &fault) const {
        const std::vector<Check> &order = export_.model.order;
        return std::find(order.begin(), order.end(), fault.check) - order.begin();
    }

    void verify(const std::vector<Fault> &faults, LxpStatus expected) {
        report_.countCase();
        call_.arguments() = valid_;
        for (const Fault &fault : faults) {
            call_.arguments()[fault.parameter] = fault.value;
        }
        setThreadCount(2);
        call_.invoke();
        call_.verify(expected, report_);
        if (threadCountQuestions() != 0) {
            call_.complain("asked for the number of threads in spite of a fault", report_);
        }
    }

    const Export &export_;
    Call call_;
    Report &report_;
    std::vector<Argument> valid_;
};

} // namespace

Report checkStatus(const Export &item) {
    Report report;
    const Shape &shape = item.model.axes->small.back();
    const std::vector<Fault> faults = faultsOf(item.model, shape);

    FaultyCall call(item, shape, 2, report);
    // Above the limit: the choice of kernel comes after the checks.
    FaultyCall large(item, shape, item.model.parallel ? firstParallelCount(item.model, shape, true) : 1, report);
    for (const Fault &fault : faults) {
        call.verify({fault});
        large.verify({fault});
    }
    if (!report.complaints().empty()) {
        return report; // a function that lets a fault pass would crash below
    }

    FaultyCall untouchable(item, shape, 2, report);
    untouchable.makeUntouchable();
    for (const Fault &fault : faults) {
        untouchable.verify({fault});
    }
    for (std::size_t first = 0; first < faults.size(); ++first) {
        for (std::size_t second = first + 1; second < faults.size() && !report.isFull(); ++second) {
            // Two sizes that are wrong in the same way may agree.
            const bool mayAgree = faults[first].check == Check::SizeMatch && faults[second].check == Check::SizeMatch;
            if (faults[first].parameter != faults[second].parameter && !mayAgree) {
                call.verify({faults[first], faults[second]});
            }
        }
    }

    // Every set of faults of different checks, one fault for each.
    std::map<Check, Fault> representatives;
    for (const Fault &fault : faults) {
        representatives.emplace(fault.check, fault);
        if (fault.check == Check::SizeMatch) {
            representatives.at(fault.check) = fault; // the last one: the first may be the parameter of a wrong size
        }
    }
    for (unsigned set = 1; set < 1u << representatives.size(); ++set) {
        std::vector<Fault> chosen;
        unsigned bit = 0;
        for (const auto &[check, fault] : representatives) {
            if ((set >> bit++ & 1) != 0) {
                chosen.push_back(fault);
            }
        }
        untouchable.verify(chosen);
    }
    return report;
}

} // namespace lxpm::test
