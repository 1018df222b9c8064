// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// One call of an export: operands in guarded memory, arguments, and what should be there afterwards.

#ifndef LXPM_TESTS_SUPPORT_CALL_H
#define LXPM_TESTS_SUPPORT_CALL_H

#include "support/exports.h"
#include "support/placed_operand.h"
#include "support/report.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace lxpm::test {

/// The bits of an operand's element; elements are numbered by object, row and column.
using Fill = std::function<std::uint64_t(int operand, std::size_t element)>;

/// Values that are all different, of either sign, and of magnitudes whose sums are not exact.
Fill distinctValues(ElementType type);

/// Small whole numbers: sums and differences are exact, and so are sums of many products.
Fill wholeNumbers(ElementType type);

class Call {
public:
    /// One placement for all operands, or one for each.
    Call(const Export &item, Shape shape, int count, const std::vector<Placement> &placements);
    ~Call();
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

    /// The destination becomes the memory of a source, before `fill`.
    void writeInPlaceOf(int source);

    /// Source `later` becomes the memory of source `earlier`, before `fill`.
    void readTwice(int earlier, int later);

    /// As good operands, or as they are.
    enum class Values { Adjusted, AsTheyAre };
    void fill(const Fill &fill, Values values = Values::Adjusted);

    /// What the formula says, from the operands as they are now.
    void expectResults();

    /// Nothing changes.
    void expectUnchanged();

    LxpStatus invoke();

    /// Complains unless the last call returned `expected` and all memory is as expected.
    void verify(LxpStatus expected, Report &report);

    /// Complains unless the last call returned a status that the formula gave, and all memory is as expected.
    void verify(Report &report);

    /// Calls and verifies a call that passes the checks and follows the formula.
    void verifyResults(Report &report);

    /// A complaint about this call.
    void complain(const std::string &what, Report &report);

    std::vector<Argument> &arguments() { return arguments_; }
    PlacedOperand &operand(int index) { return operands_[index]; }
    int operandCount() const { return static_cast<int>(operands_.size()); }
    int objects() const { return objects_; }

    /// Every element stride of the call is the element size.
    bool isContiguous() const;

    /// Whether the contract lets this call sum in the order for contiguous elements.
    bool splitsSums() const;

    /// Whether the contract hands this call to the parallel kernel.
    bool isParallel() const;

    /// An address in a guard page.
    const void *untouchable() const { return operands_.back().memory()->untouchable(); }

    /// The call as C, with its operands in words.
    std::string text() const;

private:
    template <class T>
    void applyFormula(const std::function<LxpStatus(std::span<const Elements<T>>)> &formula);
    void acceptExceptions();
    void verifyMemory(Report &report);
    Operand sized(const Operand &operand) const;
    void makeArguments();
    std::vector<Arena *> arenas() const;
    std::string describeDifference(Arena &arena, const std::byte *at);

    const Export &export_;
    Shape shape_;
    int count_;
    int objects_;
    std::vector<PlacedOperand> operands_;
    std::vector<Argument> arguments_;
    LxpStatus status_ = lxpStatusOk;
    std::vector<LxpStatus> failures_; // of objects, in their order, as the formula has them
};

/// The call that was started last, for the report of a crash; null before the first.
const Call *lastCall();

} // namespace lxpm::test

#endif
