// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <fcntl.h>
#include <unistd.h>

namespace lxpm {

std::string_view readFile(const char *name, std::span<char> buffer) noexcept {
    const int file = open(name, O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return {};
    }
    std::size_t length = 0;
    while (length < buffer.size()) {
        const ssize_t got = read(file, buffer.data() + length, buffer.size() - length);
        if (got <= 0) {
            break;
        }
        length += static_cast<std::size_t>(got);
    }
    close(file);
    return {buffer.data(), length};
}

LeadingNumber leadingNumber(std::string_view text) noexcept {
    const char *const end = text.data() + text.size();
    long long value = 0;
    const char *const rest = std::from_chars(text.data(), end, value).ptr;
    return {value, {rest, static_cast<std::size_t>(end - rest)}};
}

std::string_view takeUpTo(char separator, std::string_view &text) noexcept {
    const std::size_t length = std::min(text.find(separator), text.size());
    const std::string_view taken(text.data(), length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return taken;
}

} // namespace lxpm
