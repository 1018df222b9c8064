// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The public headers as text. Most parameters are plain int, so the compiler cannot see two of them exchanged: names
// are held against the model, in order.

#include "support/exports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

namespace lxpm::test {

namespace {

std::string withoutComments(std::string text) {
    for (std::size_t open = text.find("/*"); open != std::string::npos; open = text.find("/*", open)) {
        text.erase(open, text.find("*/", open) + 2 - open);
    }
    return text;
}

std::string readHeaders() {
    std::string all;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(LXPM_INCLUDE_DIR)) {
        if (entry.is_regular_file()) {
            std::ifstream file(entry.path());
            all += withoutComments({std::istreambuf_iterator<char>(file), {}});
        }
    }
    return all;
}

bool isOfIdentifier(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

/// The functions that the headers declare: parameter lists, as they are written, by name.
std::multimap<std::string, std::string> findDeclarations(const std::string &text) {
    std::multimap<std::string, std::string> found;
    const std::string prefix = "lxpm";
    for (std::size_t first = text.find(prefix); first != std::string::npos; first = text.find(prefix, first + 1)) {
        const auto last = std::find_if_not(text.begin() + first, text.end(), isOfIdentifier);
        if ((first > 0 && isOfIdentifier(text[first - 1])) || last == text.end() || *last != '(') {
            continue;
        }
        found.emplace(std::string(text.begin() + first, last), std::string(last + 1, std::find(last, text.end(), ')')));
    }
    return found;
}

const std::multimap<std::string, std::string> &declarations() {
    static const std::multimap<std::string, std::string> found = findDeclarations(readHeaders());
    return found;
}

std::string trimmed(const std::string &text) {
    const std::size_t first = text.find_first_not_of(" \n\t");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \n\t") + 1 - first);
}

std::vector<std::string> splitParameters(const std::string &list) {
    std::vector<std::string> parameters;
    std::istringstream stream(list);
    for (std::string parameter; std::getline(stream, parameter, ',');) {
        parameters.push_back(trimmed(parameter));
    }
    return parameters;
}

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
