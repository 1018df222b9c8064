// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

// A directory of its own that stands for the root of the file system, and vanishes with the object.
class FakeTree {
public:
    FakeTree() {
        std::string name = std::filesystem::temp_directory_path() / "lxpcore.XXXXXX";
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary directory");
        }
        directory = name;
    }
    ~FakeTree() { std::filesystem::remove_all(directory); }
    FakeTree(const FakeTree &) = delete;
    FakeTree &operator=(const FakeTree &) = delete;

    void write(const std::string &name, const std::string &text) {
        const std::filesystem::path file = directory.string() + name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    const char *root() const { return directory.c_str(); }

private:
    std::filesystem::path directory;
};
