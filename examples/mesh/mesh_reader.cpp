// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "mesh_reader.h"
#include "file_error.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

namespace lxpm::mesh {

namespace {

std::string readFile(const std::string &path) {
    const auto fail = [&] { throw FileError("cannot read " + path + ": " + std::strerror(errno)); };

    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file) {
        fail();
    }
    std::string text;
    char block[1 << 16];
    while (const std::size_t length = std::fread(block, 1, sizeof block, file.get())) {
        text.append(block, length);
    }
    if (std::ferror(file.get())) {
        fail();
    }
    return text;
}

// The first word of a line, which is cut off it.
std::string_view takeWord(std::string_view &line) {
    constexpr std::string_view blanks = " \t\r";
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(blanks));
    line.remove_prefix(word.size());
    return word;
}

template <class Number>
std::optional<Number> parse(std::string_view word) {
    if (word.starts_with('+')) {
        word.remove_prefix(1);
    }
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) {
        return std::nullopt;
    }
    return number;
}

class ObjReader {
public:
    explicit ObjReader(const std::string &path) : path_(path) {}

    void readLine(std::string_view line) {
        ++lineNumber_;
        const std::string_view keyword = takeWord(line);
        if (keyword == "v") {
            mesh_.vertices.push_back({.position = readPoint(line), .normal = {}});
        } else if (keyword == "f") {
            readFace(line);
        }
    }

    Mesh finish() {
        if (mesh_.vertices.empty() || mesh_.triangles.empty()) {
            throw FileError(path_ + " is not a mesh: it has " + (mesh_.vertices.empty() ? "no vertices" : "no faces"));
        }
        // The library counts objects and strides with int; some steps have an object for each side of each triangle.
        if (std::max(2 * mesh_.vertices.size(), 3 * mesh_.triangles.size()) > INT_MAX) {
            throw FileError(path_ + " is too large");
        }
        requireSingleRange();
        return std::move(mesh_);
    }

private:
    [[noreturn]] void fail(const std::string &what) const {
        throw FileError(path_ + ":" + std::to_string(lineNumber_) + ": " + what);
    }

    Point readPoint(std::string_view line) const {
        Point point{};
        for (float &coordinate : point) {
            const std::string_view word = takeWord(line);
            const std::optional<double> number = parse<double>(word);
            if (!number || !std::isfinite(static_cast<float>(*number))) {
                fail("a vertex needs three finite coordinates" +
                     (word.empty() ? "" : ", not '" + std::string(word) + "'"));
            }
            coordinate = static_cast<float>(*number);
        }
        return point;
    }

    // vertex, vertex/texture, vertex//normal or vertex/texture/normal. Indexes count from 1; negative ones backwards
    // from the vertex that was read last.
    int readCorner(std::string_view word) const {
        const long size = static_cast<long>(mesh_.vertices.size());
        const std::optional<long> number = parse<long>(word.substr(0, word.find('/')));
        if (!number) {
            fail("a face needs indexes, not '" + std::string(word) + "'");
        }
        const long index = *number < 0 ? *number + size : *number - 1;
        if (index < 0 || index >= size) {
            fail("the face refers to vertex " + std::to_string(*number) + ", but " + std::to_string(size) +
                 " stand before it");
        }
        return static_cast<int>(index);
    }

    void readFace(std::string_view line) {
        face_.clear();
        for (std::string_view word = takeWord(line); !word.empty(); word = takeWord(line)) {
            face_.push_back(readCorner(word));
        }
        if (face_.size() < 3) {
            fail("a face needs at least three corners");
        }
        for (std::size_t i = 2; i < face_.size(); ++i) {
            const int a = face_[0], b = face_[i - 1], c = face_[i];
            if (a != b && b != c && c != a) {
                mesh_.triangles.push_back({a, b, c});
            }
        }
    }

    // Squares of lengths, and sums of all coordinates, have to stay far from both ends of single precision.
    void requireSingleRange() const {
        constexpr float smallest = 1e-12f, largest = 1e12f;
        const auto [lower, upper] = boundsOf(mesh_.vertices);
        float extent = 0, farthest = 0;
        for (int j = 0; j < 3; ++j) {
            extent = std::max(extent, upper[j] - lower[j]);
            farthest = std::max({farthest, std::abs(lower[j]), std::abs(upper[j])});
        }
        if (!(extent >= smallest && farthest <= largest)) {
            throw FileError(path_ + " is not a mesh to compute with: its vertices should be at least 1e-12 apart and "
                                    "at most 1e12 from the origin");
        }
    }

    const std::string &path_;
    std::size_t lineNumber_ = 0;
    Mesh mesh_;
    std::vector<int> face_;
};

} // namespace

Mesh readMesh(const std::string &path, Progress &progress) {
    const std::string text = readFile(path);
    ObjReader reader(path);
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        reader.readLine(std::string_view(text).substr(begin, end - begin));
        progress.show("reading " + path, end, text.size());
        begin = end + 1;
    }
    return reader.finish();
}

} // namespace lxpm::mesh
