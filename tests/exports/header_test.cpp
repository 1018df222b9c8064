// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The public headers as text. Most parameters are plain int, so the compiler cannot see two of them exchanged: names
// are held against the model, in order.

#include "support/exports.h"
#include "support/header_text.h"

#include <gtest/gtest.h>

#include <set>

namespace lxpm::test {

namespace {

/// As the model has it: "const float *const *src1Ptrs".
std::string spelled(const Parameter &parameter) {
    return parameter.type + (parameter.type.back() == '*' ? "" : " ") + parameter.name;
}

class Header : public testing::TestWithParam<const Export *> {};

TEST_P(Header, DeclaresTheParametersOfTheModel) {
    const Model &model = GetParam()->model;
    const auto declared = declarations().find(model.name);
    ASSERT_NE(declared, declarations().end()) << "no header declares " << model.name;

    std::vector<std::string> expected;
    for (const Parameter &parameter : parametersOf(model)) {
        expected.push_back(spelled(parameter));
    }
    EXPECT_EQ(splitParameters(declared->second), expected) << "in " << model.name;
}

INSTANTIATE_TEST_SUITE_P(Every, Header, testing::ValuesIn(exportsThat([](const Model &) { return true; })),
                         [](const auto &item) { return item.param->model.name; });

TEST(Headers, DeclareTheListOfExportsAndNothingElse) {
    std::multiset<std::string> declared;
    for (const auto &[name, parameters] : declarations()) {
        declared.insert(name);
    }
    EXPECT_EQ(declared, std::multiset<std::string>(exportNames().begin(), exportNames().end()));
}

} // namespace

} // namespace lxpm::test
