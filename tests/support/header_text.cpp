// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/header_text.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
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

} // namespace

const std::multimap<std::string, std::string> &declarations() {
    static const std::multimap<std::string, std::string> found = findDeclarations(readHeaders());
    return found;
}

namespace {

std::string trimmed(const std::string &text) {
    const std::size_t first = text.find_first_not_of(" \n\t");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \n\t") + 1 - first);
}

} // namespace

std::vector<std::string> splitParameters(const std::string &list) {
    std::vector<std::string> parameters;
    std::istringstream stream(list);
    for (std::string parameter; std::getline(stream, parameter, ',');) {
        parameters.push_back(trimmed(parameter));
    }
    return parameters;
}

} // namespace lxpm::test
