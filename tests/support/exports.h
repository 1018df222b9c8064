// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Every export of the library's list, with its model.

#ifndef LXPM_TESTS_SUPPORT_EXPORTS_H
#define LXPM_TESTS_SUPPORT_EXPORTS_H

#include "support/callable.h"
#include "support/model.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace lxpm::test {

struct Export {
    Model model;
    Callable function;
};

/// The exports that belong to a family, in the order of the list.
const std::vector<Export> &familyExports();

/// The names of all exports, in the order of the list.
const std::vector<std::string> &exportNames();

/// By its name; a name that is not in the list is an error of the caller.
const Export &findExport(const std::string &name);

/// Those that satisfy a condition.
std::vector<const Export *> exportsThat(const std::function<bool(const Model &)> &condition);

void PrintTo(const Export *item, std::ostream *stream);

} // namespace lxpm::test

#endif
