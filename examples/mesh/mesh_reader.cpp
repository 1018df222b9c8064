// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "mesh_reader.h"

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
    const auto fail = [&] { throw ReadError("cannot read " + path + ": " + std::strerror(errno)); };

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

Point normalised(const Point &v) {
    const double length = std::hypot(v[0], v[1], v[2]);
    if (length == 0) {
        return {};
    }
    return {static_cast<float>(v[0] / length), static_cast<float>(v[1] / length), static_cast<float>(v[2] / length)};
}

// Of twice the length of the triangle's area.
Point areaNormal(const Point &a, const Point &b, const Point &c) {
    const Point u = {b[0] - a[0], b[1] - a[1], b[2] - a[2]};
    const Point v = {c[0] - a[0], c[1] - a[1], c[2] - a[2]};
    return {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
}

void accumulate(Point &sum, const Point &term) {
    for (int j = 0; j < 3; ++j) {
        sum[j] += term[j];
    }
}

class ObjReader {
public:
    explicit ObjReader(const std::string &path) : path_(path) {}

    void readLine(std::string_view line) {
        ++lineNumber_;
        const std::string_view keyword = takeWord(line);
        if (keyword == "v") {
            mesh_.vertices.push_back({.position = readPoint(line), .normal = {}});
        } else if (keyword == "vn") {
            normals_.push_back(readPoint(line));
        } else if (keyword == "f") {
            readFace(line);
        }
    }

    Mesh finish() {
        if (mesh_.vertices.empty() || mesh_.triangles.empty()) {
            throw ReadError(path_ + " is not a mesh: it has " + (mesh_.vertices.empty() ? "no vertices" : "no faces"));
        }
        // The library counts objects with int; a step may have an object for each side of each triangle.
        if (std::max(mesh_.vertices.size(), 3 * mesh_.triangles.size()) > INT_MAX) {
            throw ReadError(path_ + " is too large");
        }
        if (!everyCornerHasNormal_) {
            takeNormalsOfTriangles();
        }
        for (Vertex &vertex : mesh_.vertices) {
            vertex.normal = normalised(vertex.normal);
        }
        return std::move(mesh_);
    }

private:
    struct Corner {
        int vertex;
        std::optional<int> normal;
    };

    [[noreturn]] void fail(const std::string &what) const {
        throw ReadError(path_ + ":" + std::to_string(lineNumber_) + ": " + what);
    }

    Point readPoint(std::string_view line) const {
        Point point{};
        for (float &coordinate : point) {
            const std::optional<float> number = parse<float>(takeWord(line));
            if (!number || !std::isfinite(*number)) {
                fail("a vertex or normal needs three finite coordinates");
            }
            coordinate = *number;
        }
        return point;
    }

    // Indexes count from 1; negative ones backwards from the element that was read last.
    int readIndex(std::string_view word, std::size_t size, const char *what) const {
        const std::optional<long> number = parse<long>(word);
        if (!number) {
            fail("a face needs indexes, not '" + std::string(word) + "'");
        }
        const long index = *number < 0 ? *number + static_cast<long>(size) : *number - 1;
        if (index < 0 || index >= static_cast<long>(size)) {
            fail(std::string("the face refers to ") + what + " " + std::to_string(*number) + ", but " +
                 std::to_string(size) + " stand before it");
        }
        return static_cast<int>(index);
    }

    // vertex, vertex/texture, vertex//normal or vertex/texture/normal
    Corner readCorner(std::string_view word) const {
        const std::size_t first = word.find('/');
        const std::size_t second = first == word.npos ? word.npos : word.find('/', first + 1);
        Corner corner{readIndex(word.substr(0, first), mesh_.vertices.size(), "vertex"), std::nullopt};
        if (second != word.npos) {
            corner.normal = readIndex(word.substr(second + 1), normals_.size(), "normal");
        }
        return corner;
    }

    void readFace(std::string_view line) {
        face_.clear();
        for (std::string_view word = takeWord(line); !word.empty(); word = takeWord(line)) {
            const Corner corner = readCorner(word);
            face_.push_back(corner.vertex);
            if (corner.normal) {
                accumulate(mesh_.vertices[corner.vertex].normal, normals_[*corner.normal]);
            } else {
                everyCornerHasNormal_ = false;
            }
        }
        if (face_.size() < 3) {
            fail("a face needs at least three corners");
        }
        for (std::size_t i = 2; i < face_.size(); ++i) {
            mesh_.triangles.push_back({face_[0], face_[i - 1], face_[i]});
        }
    }

    void takeNormalsOfTriangles() {
        for (Vertex &vertex : mesh_.vertices) {
            vertex.normal = {};
        }
        for (const auto &[a, b, c] : mesh_.triangles) {
            std::vector<Vertex> &vertices = mesh_.vertices;
            const Point normal = areaNormal(vertices[a].position, vertices[b].position, vertices[c].position);
            accumulate(vertices[a].normal, normal);
            accumulate(vertices[b].normal, normal);
            accumulate(vertices[c].normal, normal);
        }
    }

    const std::string &path_;
    std::size_t lineNumber_ = 0;
    Mesh mesh_;
    std::vector<Point> normals_;
    std::vector<int> face_;
    bool everyCornerHasNormal_ = true;
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
