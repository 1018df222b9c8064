// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/checks.h"
#include "checks/placements.h"
#include "support/axes.h"
#include "support/call.h"
#include "support/thread_count.h"

#include <algorithm>

namespace lxpm::test {

namespace {

// Enough for a hundred matrices of order 17; larger calls show nothing that these do not.
constexpr long mostElements = 30'000;

bool isAffordable(const Shape &shape, int count) {
    long elements = count;
    for (const int size : shape) {
        elements *= size;
    }
    return elements <= mostElements;
}

bool contains(const std::vector<Shape> &list, const Shape &shape) {
    return std::find(list.begin(), list.end(), shape) != list.end();
}

struct ValueCase {
    Shape shape;
    int count;
    int combination;
};

/// Small objects, and all of an export without arrays, meet every combination of stride patterns; for the others the
/// combinations take turns.
std::vector<ValueCase> valueCases(const Model &model) {
    std::vector<ValueCase> cases;
    const SizeAxes &axes = *model.axes;
    for (const Shape &shape : axes.all) {
        for (const int count : countsOf(model)) {
            if (!isAffordable(shape, count)) {
                continue;
            }
            const bool meetsAll = contains(axes.small, shape) || !model.hasCount;
            const int turns = meetsAll ? combinations() : 3;
            for (int turn = 0; turn < turns; ++turn) {
                cases.push_back({shape, count, static_cast<int>(cases.size()) % combinations()});
            }
        }
    }
    return cases;
}

void verify(const Export &item, const Shape &shape, int count, const std::vector<Placement> &placements,
            Report &report) {
    Call call(item, shape, count, placements);
    call.fill(distinctValues(item.model.type));
    call.verifyResults(report);
}

} // namespace

Report checkParameterTypes(const Export &item) {
    Report report;
    const std::vector<Parameter> expected = parametersOf(item.model);
    const std::vector<std::string> actual = item.function.parameterTypes();
    report.countCase();
    if (actual.size() != expected.size()) {
        report.complain(item.model.name + " has " + std::to_string(actual.size()) + " parameters, expected " +
                        std::to_string(expected.size()));
        return report;
    }
    for (std::size_t index = 0; index < expected.size(); ++index) {
        if (actual[index] != expected[index].type) {
            report.complain(item.model.name + ": " + expected[index].name + " has type " + actual[index] +
                            ", expected " + expected[index].type);
        }
    }
    return report;
}

Report checkValues(const Export &item) {
    Report report;
    setThreadCount(1);
    int seed = 0;
    for (const ValueCase &at : valueCases(item.model)) {
        if (report.isFull()) {
            break;
        }
        std::vector<Placement> placements = combination(item.model, at.combination);
        scatter(placements, seed++);
        verify(item, at.shape, at.count, placements, report);
    }
    return report;
}

Report checkGuards(const Export &item) {
    // Whole registers of lanes, one or two of either type, the same with a remainder, no array worth the name, and one
    // whose vectors go together as the rows of one product.
    static constexpr int counts[] = {1, 2, 8, 9, 16, 27};
    Report report;
    setThreadCount(1);
    int seed = 0;
    for (const Shape &shape : item.model.axes->tight) {
        for (const int count : counts) {
            for (int number = 0; number < combinations() && !report.isFull(); ++number) {
                std::vector<Placement> placements = combination(item.model, number);
                scatter(placements, seed++);
                for (const Edge edge : {Edge::Front, Edge::Back}) {
                    for (Placement &placement : placements) {
                        placement.edge = edge;
                        placement.shift = 0;
                    }
                    verify(item, shape, count, placements, report);
                }
            }
            if (!item.model.hasCount) {
                break;
            }
        }
    }
    return report;
}

Report checkInPlace(const Export &item) {
    Report report;
    setThreadCount(1);
    int seed = 0;
    const int sources = static_cast<int>(item.model.operands.size()) - 1;
    for (const ValueCase &at : valueCases(item.model)) {
        std::vector<Placement> placements = combination(item.model, at.combination);
        scatter(placements, seed++);
        for (int source = 0; source < sources && !report.isFull(); ++source) {
            // A row that overlaps the next one would be read after it was written.
            if (!item.model.mayBeInPlace(source) || !placements[source].pattern->isOneToOne()) {
                continue;
            }
            Call call(item, at.shape, at.count, placements);
            call.writeInPlaceOf(source);
            call.fill(distinctValues(item.model.type));
            call.verifyResults(report);

            // All operands at once, where both sources may be the destination.
            for (int earlier = 0; earlier < source; ++earlier) {
                if (item.model.mayBeInPlace(earlier)) {
                    Call onItself(item, at.shape, at.count, placements);
                    onItself.readTwice(source, earlier);
                    onItself.writeInPlaceOf(source);
                    onItself.fill(distinctValues(item.model.type));
                    onItself.verifyResults(report);
                }
            }
        }
    }
    return report;
}

} // namespace lxpm::test
