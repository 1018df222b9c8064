// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#ifndef LXPM_TESTS_SUPPORT_REPORT_H
#define LXPM_TESTS_SUPPORT_REPORT_H

#include <string>
#include <utility>
#include <vector>

namespace lxpm::test {

/// What a check of an export found: how many cases it ran, and what was wrong. Checks report instead of failing, so
/// that they can be tried on functions that are wrong on purpose.
class Report {
public:
    void countCase() { ++cases_; }
    int cases() const { return cases_; }

    void complain(std::string complaint) { complaints_.push_back(std::move(complaint)); }
    const std::vector<std::string> &complaints() const { return complaints_; }

    /// Enough is known: further cases of a wrong kernel only make the output longer.
    bool isFull() const { return complaints_.size() >= 3; }

private:
    int cases_ = 0;
    std::vector<std::string> complaints_;
};

} // namespace lxpm::test

#endif
