// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "output_file.h"
#include "file_error.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lxpm::mesh {

namespace {

// Removed at the end of its life, unless it has become the file that was wanted.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string &destination)
        : name_(destination + ".XXXXXX"), descriptor_(mkstemp(name_.data())) {
        if (descriptor_ < 0) {
            fail();
        }
    }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
        if (!name_.empty()) {
            unlink(name_.c_str());
        }
    }

    void write(std::span<const unsigned char> content) {
        while (!content.empty()) {
            const ssize_t written = ::write(descriptor_, content.data(), content.size());
            if (written < 0 && errno == EINTR) {
                continue;
            }
            if (written < 0) {
                fail();
            }
            content = content.subspan(static_cast<std::size_t>(written));
        }
    }

    void becomes(const std::string &destination) {
        // mkstemp lets nobody else read the file; it should be as any other new one.
        const mode_t mask = umask(0);
        umask(mask);
        const bool complete = fchmod(descriptor_, 0666 & ~mask) == 0 && fsync(descriptor_) == 0;
        if (!complete || std::rename(name_.c_str(), destination.c_str()) != 0) {
            fail();
        }
        name_.clear();
    }

private:
    // What goes wrong goes to the destination's account: nobody knows the temporary name.
    [[noreturn]] static void fail() { throw std::system_error(errno, std::generic_category()); }

    std::string name_;
    int descriptor_;
};

} // namespace

void writeFile(const std::string &path, std::span<const unsigned char> content) {
    const auto fail = [&path](const std::string &why) { throw FileError("cannot write " + path + ": " + why); };
    try {
        // What a link points to is to be replaced, not the link; and never a device.
        const std::filesystem::path destination = std::filesystem::weakly_canonical(path);
        if (std::filesystem::exists(destination) && !std::filesystem::is_regular_file(destination)) {
            fail("it is not a regular file");
        }
        TemporaryFile file(destination);
        file.write(content);
        file.becomes(destination);
    } catch (const std::system_error &error) {
        fail(error.code().message());
    }
}

} // namespace lxpm::mesh
