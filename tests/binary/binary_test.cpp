// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The shared object as the linker left it, seen through the usual tools.

#include "support/exports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <regex>
#include <set>
#include <sstream>

namespace lxpm::test {

namespace {

/// The lines that a command prints.
std::vector<std::string> linesOf(const std::string &command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> pipe(popen(command.c_str(), "r"), pclose);
    std::string text;
    char buffer[4096];
    while (pipe != nullptr) {
        const std::size_t length = std::fread(buffer, 1, sizeof buffer, pipe.get());
        if (length == 0) {
            break;
        }
        text.append(buffer, length);
    }
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    EXPECT_FALSE(lines.empty()) << command << " printed nothing";
    return lines;
}

std::string ofLibrary(const std::string &tool) {
    return tool + " '" LXPM_LIBRARY "'";
}

/// The symbol names that nm prints, without their versions.
std::set<std::string> symbols(const std::string &which) {
    std::set<std::string> names;
    for (const std::string &line : linesOf(ofLibrary(LXPM_NM " --dynamic " + which))) {
        const std::size_t space = line.rfind(' ');
        names.insert(line.substr(space + 1, line.find('@', space) - space - 1));
    }
    return names;
}

/// The bracketed values of one kind of dynamic entry: (NEEDED), (SONAME).
std::set<std::string> dynamicEntries(const std::string &kind) {
    std::set<std::string> values;
    for (const std::string &line : linesOf(ofLibrary(LXPM_READELF " --dynamic --wide"))) {
        if (line.find("(" + kind + ")") != std::string::npos) {
            const std::size_t open = line.find('[');
            values.insert(line.substr(open + 1, line.find(']') - open - 1));
        }
    }
    return values;
}

TEST(Binary, ExportsTheListAndNothingElse) {
    std::set<std::string> exported = symbols("--defined-only");
    // The name of the symbol version is a symbol of its own.
    std::erase_if(exported, [](const std::string &name) { return name.starts_with("LXPM_"); });
    EXPECT_EQ(exported, std::set<std::string>(exportNames().begin(), exportNames().end()));
}

TEST(Binary, DependsOnNothingBeyondTheLanguageAndItsOwnFamily) {
    static const std::set<std::string> allowed = {
        // the C library, and its loader, which serves thread-local variables
        "libc.so.6",
        "libm.so.6",
        "ld-linux-x86-64.so.2",
        // what the compilers bring along
        "libstdc++.so.6",
        "libgcc_s.so.1",
        // OpenMP, by its several names
        "libgomp.so.1",
        "libomp.so.5",
        "libiomp5.so",
        "liblxpcore.so.7",
    };
    const std::set<std::string> needed = dynamicEntries("NEEDED");
    EXPECT_TRUE(needed.contains("liblxpcore.so.7"));
    for (const std::string &name : needed) {
        EXPECT_TRUE(allowed.contains(name)) << name;
    }
    EXPECT_EQ(dynamicEntries("SONAME"), std::set<std::string>{"liblxpm.so.7"});
}

TEST(Binary, StackIsNotExecutable) {
    const std::vector<std::string> lines = linesOf(ofLibrary(LXPM_READELF " --program-headers --wide"));
    const auto stack = std::find_if(lines.begin(), lines.end(), [](const std::string &line) {
        return line.find("GNU_STACK") != std::string::npos;
    });
    ASSERT_NE(stack, lines.end());
    EXPECT_NE(stack->find(" RW "), std::string::npos) << *stack;
}

#ifdef NDEBUG
// A debug build may assert.
TEST(Binary, NeverPrintsNorEndsTheProcess) {
    const std::regex forbidden(
        // ends the process
        "exit|_exit|_Exit|quick_exit|abort|raise|kill|__assert_fail|__stack_chk_fail|_ZSt9terminatev|_ZSt.*__throw_.*|"
        "_ZSt.*__glibcxx_assert_fail.*|__cxa_throw|__cxa_pure_virtual|"
        // prints
        "v?[df]?printf|__v?f?printf_chk|puts|putchar|putc|fputs|fputc|fwrite|write|perror|psignal|v?syslog|"
        "_ZSt4c(out|err|log)");
    for (const std::string &name : symbols("--undefined-only")) {
        EXPECT_FALSE(std::regex_match(name, forbidden)) << name;
    }
}
#endif

struct Instructions {
    const char *why;
    std::regex pattern;
};

TEST(Binary, HasNoInstructionBeyondAvxAndNoneThatFuses) {
    const auto compile = [](const char *pattern) { return std::regex(pattern, std::regex::optimize); };
    // Matched from the mnemonic on.
    const std::vector<Instructions> forbidden = {
        {"fused multiply-add rounds once instead of twice", compile("vfn?m(add|sub).*")},
        {"AVX-512 registers and masks", compile(".*%(zmm|[xy]mm(1[6-9]|2[0-9]|3[01])|k[0-7]).*")},
        {"AVX2: whole numbers in 256 bits", compile("vp(?!test|ermilp[sd]|erm2f128)\\S+ .*%ymm.*")},
        {"AVX2: permutations and insertions", compile("v(perm(d|q|ps|pd|2i128)|(insert|extract|broadcast)i128) .*")},
        {"AVX2: gathering, variable shifts, masks", compile("vp?(gather|sllv|srlv|srav|maskmovd|maskmovq|blendd).*")},
        {"AVX2: broadcasts", compile("vpbroadcast.*|vbroadcasts[sd]\\s+%xmm.*|vmovntdqa .*%ymm.*")},
        {"half precision", compile("vcvt(ph2ps|ps2ph).*")},
        {"bit manipulation", compile("(andn|bextr|bls(i|r|msk)|bzhi|mulx|pdep|pext|rorx|s[ah][lr]x|lzcnt|movbe)\\b.*")},
    };
    int instructions = 0;
    for (const std::string &line : linesOf(ofLibrary(LXPM_OBJDUMP " --disassemble --no-show-raw-insn"))) {
        // "    1234:\tvaddps %ymm0,%ymm1,%ymm2"
        const std::size_t tab = line.find('\t');
        if (tab == std::string::npos) {
            continue;
        }
        ++instructions;
        const std::string instruction = line.substr(tab + 1);
        for (const Instructions &kind : forbidden) {
            EXPECT_FALSE(std::regex_match(instruction, kind.pattern)) << kind.why << ":" << line;
        }
    }
    EXPECT_GT(instructions, 1000);
}

} // namespace

} // namespace lxpm::test
