// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/call.h"

#include "support/elements.h"
#include "support/thread_count.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>
#include <iomanip>
#include <sstream>

namespace lxpm::test {

namespace {

std::atomic<const Call *> latest = nullptr;
thread_local const Call *latestOfThread = nullptr;

std::uint64_t bitsOf(ElementType type, double value) {
    std::uint64_t bits = 0;
    if (type == ElementType::Float32) {
        const float narrow = static_cast<float>(value);
        std::memcpy(&bits, &narrow, sizeof narrow);
    } else {
        std::memcpy(&bits, &value, sizeof value);
    }
    return bits;
}

/// A value with its bits, as it stands at an address.
std::string valueText(ElementType type, const std::byte *address) {
    std::ostringstream text;
    if (type == ElementType::Float32) {
        float value;
        std::uint32_t bits;
        std::memcpy(&value, address, sizeof value);
        std::memcpy(&bits, address, sizeof bits);
        text << std::setprecision(9) << value << " (0x" << std::hex << std::setw(8) << std::setfill('0') << bits << ")";
    } else {
        double value;
        std::uint64_t bits;
        std::memcpy(&value, address, sizeof value);
        std::memcpy(&bits, address, sizeof bits);
        text << std::setprecision(17) << value << " (0x" << std::hex << std::setw(16) << std::setfill('0') << bits
             << ")";
    }
    return text.str();
}

std::string argumentText(const Argument &argument) {
    std::ostringstream text;
    if (const auto *pointer = std::get_if<const void *>(&argument)) {
        text << *pointer;
    } else if (const auto *number = std::get_if<int>(&argument)) {
        text << *number;
    } else if (const auto *single = std::get_if<float>(&argument)) {
        text << std::hexfloat << *single << "f";
    } else {
        text << std::hexfloat << std::get<double>(argument);
    }
    return text.str();
}

bool isNan(ElementType type, const std::byte *address) {
    if (type == ElementType::Float32) {
        float value;
        std::memcpy(&value, address, sizeof value);
        return std::isnan(value);
    }
    double value;
    std::memcpy(&value, address, sizeof value);
    return std::isnan(value);
}

} // namespace

Fill distinctValues(ElementType type) {
    return [type](int operand, std::size_t element) {
        // Odd multipliers permute the fractions, so no two elements of an operand are equal, and operands start far
        // apart. Eight exponents around 1 and both signs make sums round in every way.
        const std::uint64_t number = static_cast<std::uint64_t>(operand + 1) * 0x100000 + element;
        const std::uint64_t mixed = number * 0x9e3779b97f4a7c15u;
        const std::uint64_t sign = mixed >> 63;
        const std::uint64_t exponent = (mixed >> 60) & 7;
        if (type == ElementType::Float32) {
            return sign << 31 | (124 + exponent) << 23 | ((number * 0x2545f5u) & 0x7fffff);
        }
        return sign << 63 | (1020 + exponent) << 52 | ((number * 0x9e3779b97f4a7c15u) & 0xfffffffffffffu);
    };
}

Fill wholeNumbers(ElementType type) {
    return [type](int operand, std::size_t element) {
        return bitsOf(type, static_cast<double>(element % 50) + 50.0 * operand + 1.0);
    };
}

Call::Call(const Export &item, Shape shape, int count, const std::vector<Placement> &placements)
    : export_(item), shape_(std::move(shape)), count_(count), objects_(item.model.hasCount ? count : 1) {
    const Model &model = export_.model;
    operands_.reserve(model.operands.size());
    for (std::size_t index = 0; index < model.operands.size(); ++index) {
        operands_.emplace_back(sized(model.operands[index]), model.layout, model.type, shape_, objects_,
                               placements[std::min(index, placements.size() - 1)]);
    }
}

/// Scratch is as large as the contract says, for the team that the call gets, and not larger.
Operand Call::sized(const Operand &operand) const {
    Operand result = operand;
    if (operand.scratchElements) {
        const bool isParallel = export_.model.parallel && export_.model.parallel->isParallel(shape_, count_, true);
        const int teams = operand.hasScratchPerThread && isParallel ? teamFor(count_) : 1;
        result.rows = Operand::one;
        result.columns = -operand.scratchElements(shape_) * teams;
    }
    return result;
}

Call::~Call() {
    latestOfThread = nullptr;
    const Call *self = this;
    latest.compare_exchange_strong(self, nullptr);
}

void Call::writeInPlaceOf(int source) {
    operands_.back().becomeSameAs(operands_[source]);
}

void Call::readTwice(int earlier, int later) {
    operands_[later].becomeSameAs(operands_[earlier]);
}

void Call::fill(const Fill &fill, Values values) {
    const auto &adjust = export_.model.adjust;
    const auto bitsAt = [&](const PlacedOperand &operand, const ElementPlace &place,
                            std::uint64_t bits) -> std::uint64_t {
        if (operand.model().kind == Kind::Indices) {
            // What is to be written holds no valid index before.
            const int index = permuted(place.object, place.column, place.columns);
            return static_cast<std::uint32_t>(index + (operand.model().isWritten ? 1000 : 0));
        }
        return adjust && values == Values::Adjusted ? adjust(place, bits) : bits;
    };
    // The destination first: where it is a source's memory, the source's values count.
    for (int index = static_cast<int>(operands_.size()) - 1; index >= 0; --index) {
        PlacedOperand &operand = operands_[index];
        std::size_t element = 0;
        for (int object = 0; object < operand.objects(); ++object) {
            for (int row = 0; row < operand.rows(); ++row) {
                for (int column = 0; column < operand.columns(); ++column) {
                    const ElementPlace place = {index, object, row, column, operand.columns()};
                    operand.setBits(object, row, column, bitsAt(operand, place, fill(index, element++)));
                }
            }
        }
    }
    makeArguments();
}

void Call::makeArguments() {
    arguments_.clear();
    const auto append = [&](bool last) {
        for (int index = 0; index < static_cast<int>(operands_.size()); ++index) {
            if (operands_[index].model().standsLast != last) {
                continue;
            }
            operands_[index].appendArguments(arguments_);
            for (const SizeParameter &size : export_.model.sizes) {
                if (size.operand == index) {
                    arguments_.emplace_back(shape_[size.size]);
                }
            }
        }
    };
    append(false);
    if (export_.model.hasCount) {
        arguments_.emplace_back(count_);
    }
    append(true);
}

std::vector<Arena *> Call::arenas() const {
    std::vector<Arena *> list;
    for (const PlacedOperand &operand : operands_) {
        for (Arena *arena : {operand.memory().get(), operand.pointerMemory().get()}) {
            if (arena != nullptr && std::find(list.begin(), list.end(), arena) == list.end()) {
                list.push_back(arena);
            }
        }
    }
    return list;
}

void Call::expectUnchanged() {
    for (Arena *arena : arenas()) {
        arena->expectUnchanged();
    }
    for (PlacedOperand &operand : operands_) {
        operand.forgetExceptions();
    }
}

template <class T>
void Call::applyFormula(const std::function<LxpStatus(std::span<const Elements<T>>)> &formula) {
    failures_.clear();
    for (PlacedOperand &operand : operands_) {
        for (int column = 0; operand.model().kind == Kind::Scratch && column < operand.columns(); ++column) {
            operand.expectAnything(0, 0, column);
        }
    }
    std::vector<Elements<T>> elements;
    for (int object = 0; object < objects_; ++object) {
        elements.clear();
        for (PlacedOperand &operand : operands_) {
            elements.emplace_back(operand, object);
        }
        if (const LxpStatus status = formula(elements); status != lxpStatusOk) {
            failures_.push_back(status);
            if (export_.model.failingObjectEndsCall) {
                return;
            }
        }
    }
}

void Call::expectResults() {
    expectUnchanged();
    if (export_.model.type == ElementType::Float32) {
        applyFormula<float>(export_.model.formula.in32f);
    } else {
        applyFormula<double>(export_.model.formula.in64f);
    }
}

LxpStatus Call::invoke() {
    latestOfThread = this;
    latest.store(this, std::memory_order_relaxed);
    status_ = export_.function(arguments_);
    return status_;
}

void Call::acceptExceptions() {
    const ElementType type = export_.model.type;
    for (PlacedOperand &to : operands_) {
        for (std::byte *address : to.anyNan()) {
            if (isNan(type, address)) {
                std::memcpy(to.memory()->expected(address), address, sizeOf(type));
            }
        }
        for (std::byte *address : to.anything()) {
            std::memcpy(to.memory()->expected(address), address, sizeOf(type));
        }
    }
}

void Call::verify(LxpStatus expected, Report &report) {
    if (status_ != expected) {
        complain("returned " + std::to_string(status_) + ", expected " + std::to_string(expected), report);
        return;
    }
    verifyMemory(report);
}

void Call::verify(Report &report) {
    // Of several threads any may have been the first one to record a failure.
    const bool isOneOfThem = isParallel() && teamFor(count_) > 1 &&
                             std::find(failures_.begin(), failures_.end(), status_) != failures_.end();
    verify(isOneOfThem ? status_ : failures_.empty() ? lxpStatusOk : failures_.front(), report);
}

void Call::verifyMemory(Report &report) {
    acceptExceptions();
    for (Arena *arena : arenas()) {
        if (!arena->isAsExpected()) {
            complain(describeDifference(*arena, arena->findDifference(arena->begin())), report);
        }
    }
}

void Call::verifyResults(Report &report) {
    report.countCase();
    expectResults();
    invoke();
    verify(report);
}

void Call::complain(const std::string &what, Report &report) {
    report.complain(what + "\n" + text());
}

std::string Call::describeDifference(Arena &arena, const std::byte *at) {
    // The destination first: where it is a source's memory, a wrong result is the likely cause.
    for (auto operand = operands_.rbegin(); operand != operands_.rend(); ++operand) {
        if (operand->memory().get() == &arena) {
            const int size = operand->elementSize();
            const std::string element = operand->nameOfElementAt(at);
            if (element.empty()) {
                return "a byte between the elements of " + operand->model().role + " was changed, " +
                       std::to_string(at - arena.begin()) + " bytes behind its guard page";
            }
            const std::byte *first = arena.begin() + (at - arena.begin()) / size * size;
            if (operand->model().kind == Kind::Indices) {
                return operand->model().role + ", " + element + ": a wrong index";
            }
            return operand->model().role + ", " + element + ": found " + valueText(export_.model.type, first) +
                   ", expected " + valueText(export_.model.type, arena.expected(first));
        }
        if (operand->pointerMemory().get() == &arena) {
            return "the pointer array of " + operand->model().role + " was changed";
        }
    }
    return "memory of no operand was changed";
}

bool Call::isContiguous() const {
    return std::all_of(operands_.begin(), operands_.end(),
                       [](const PlacedOperand &operand) { return operand.isContiguous(); });
}

bool Call::splitsSums() const {
    const Model &model = export_.model;
    return model.splitsContiguousSums && model.layout != Layout::ElementPointers && isContiguous() &&
           model.splitsContiguousSums(shape_);
}

bool Call::isParallel() const {
    return export_.model.parallel && export_.model.parallel->isParallel(shape_, count_, isContiguous());
}

std::string Call::text() const {
    const std::vector<Parameter> parameters = parametersOf(export_.model);
    std::ostringstream text;
    text << "in " << export_.model.name << "(";
    for (std::size_t index = 0; index < arguments_.size(); ++index) {
        text << (index == 0 ? "" : ", ") << parameters[index].name << " = " << argumentText(arguments_[index]);
    }
    text << ")";
    for (const PlacedOperand &operand : operands_) {
        text << "\n  " << operand.describe();
    }
    return text.str();
}

const Call *lastCall() {
    return latestOfThread != nullptr ? latestOfThread : latest.load(std::memory_order_relaxed);
}

} // namespace lxpm::test
