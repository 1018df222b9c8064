// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// All exports, one test of each name for each check.

#include "checks/checks.h"
#include "graphics/exports.h"
#include "support/expect_sound.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace lxpm::test {

namespace {

using Exports = testing::TestWithParam<const Export *>;

std::string nameOf(const testing::TestParamInfo<const Export *> &info) {
    return info.param->model.name;
}

bool anyExport(const Model &) {
    return true;
}

bool isArrayExport(const Model &model) {
    return model.parallel.has_value();
}

bool hasInPlaceSource(const Model &model) {
    for (int source = 0; source + 1 < static_cast<int>(model.operands.size()); ++source) {
        if (model.mayBeInPlace(source)) {
            return true;
        }
    }
    return false;
}

class Interface : public Exports {};
TEST_P(Interface, TypesOfParametersAreThoseOfTheModel) {
    expectSound(checkParameterTypes(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, Interface, testing::ValuesIn(exportsThat(anyExport)), nameOf);

class Values : public Exports {};
TEST_P(Values, AreThoseOfTheFormula) {
    expectSound(checkValues(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, Values, testing::ValuesIn(exportsThat(anyExport)), nameOf);

class SpecialValues : public Exports {};
TEST_P(SpecialValues, AreThoseOfTheFormula) {
    expectSound(checkSpecialValues(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, SpecialValues, testing::ValuesIn(exportsThat(anyExport)), nameOf);

class Guards : public Exports {};
TEST_P(Guards, AreNotTouched) {
    expectSound(checkGuards(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, Guards, testing::ValuesIn(exportsThat(anyExport)), nameOf);

class Status : public Exports {};
TEST_P(Status, IsThatOfTheFirstFault) {
    expectSound(checkStatus(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, Status, testing::ValuesIn(exportsThat(anyExport)), nameOf);

class FloatingPointEnvironment : public Exports {};
TEST_P(FloatingPointEnvironment, IsObeyedAndLeftAlone) {
    expectSound(checkFloatingPointEnvironment(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, FloatingPointEnvironment, testing::ValuesIn(exportsThat(anyExport)), nameOf);

class InPlace : public Exports {};
TEST_P(InPlace, GivesTheSameResults) {
    expectSound(checkInPlace(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, InPlace, testing::ValuesIn(exportsThat(hasInPlaceSource)), nameOf);

class Thresholds : public Exports {};
TEST_P(Thresholds, LieExactlyWhereTheMeasureSays) {
    expectSound(checkThresholds(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, Thresholds, testing::ValuesIn(exportsThat(isArrayExport)), nameOf);

class Threads : public Exports {};
TEST_P(Threads, GiveTheSameResults) {
    expectSound(checkThreads(*GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Every, Threads, testing::ValuesIn(exportsThat(isArrayExport)), nameOf);

// --- The layouts of one operation, code and type ---

struct LayoutsOfOne {
    std::string name; // Add_mam_32f
    std::vector<const Export *> layouts;
};

void PrintTo(const LayoutsOfOne &group, std::ostream *stream) {
    *stream << group.name;
}

std::vector<LayoutsOfOne> groupLayouts() {
    std::map<std::string, std::vector<const Export *>> groups;
    for (const Export &item : familyExports()) {
        const Model &model = item.model;
        const char *type = model.type == ElementType::Float32 ? "_32f" : "_64f";
        groups[model.operation + "_" + model.code + type].push_back(&item);
    }
    std::vector<LayoutsOfOne> list;
    for (auto &[name, layouts] : groups) {
        list.push_back({name, std::move(layouts)});
    }
    return list;
}

class Layouts : public testing::TestWithParam<LayoutsOfOne> {};
TEST_P(Layouts, GiveTheSameBitsOnEveryPath) {
    expectSound(checkSameBits(GetParam().layouts));
}
INSTANTIATE_TEST_SUITE_P(Every, Layouts, testing::ValuesIn(groupLayouts()),
                         [](const auto &group) { return group.param.name; });

// --- Nothing is left out ---

TEST(Coverage, TheListHasAllExports) {
    std::map<std::string, int> exports;
    for (const Export &item : familyExports()) {
        ++exports[item.model.operation];
    }
    EXPECT_EQ(exports, (std::map<std::string, int>{{"Add", 92},
                                                   {"Sub", 154},
                                                   {"Mul", 174},
                                                   {"Gaxpy", 16},
                                                   {"DotProduct", 16},
                                                   {"CrossProduct", 22},
                                                   {"L2Norm", 10},
                                                   {"FrobNorm", 10},
                                                   {"Trace", 10},
                                                   {"Transpose", 10},
                                                   {"CopyToS", 12},
                                                   {"CopyToL", 12},
                                                   {"CopyToP", 12},
                                                   {"Extract", 30},
                                                   {"LoadIdentity", 6},
                                                   {"Saxpy", 22},
                                                   {"LComb", 16},
                                                   {"EigenValuesSym", 10},
                                                   {"EigenValuesVectorsSym", 10},
                                                   {"EigenValues", 10},
                                                   {"EigenValuesVectors", 10},
                                                   {"EigenValuesVectorsRight", 10},
                                                   {"EigenValuesVectorsLeft", 10},
                                                   {"LUDecomp", 10},
                                                   {"LUBackSubst", 16},
                                                   {"CholeskyDecomp", 10},
                                                   {"CholeskyBackSubst", 16},
                                                   {"QRDecomp", 10},
                                                   {"QRBackSubst", 16},
                                                   {"Det", 10},
                                                   {"Invert", 10}}));
    // Without a family: lxpmGetLibVersion, and the four sizes of scratch memory for general eigenproblems.
    EXPECT_EQ(exportNames().size(), familyExports().size() + graphicsExports().size() + 1 + 4);
}

TEST(Coverage, EverySuiteRunsEveryExport) {
    const std::map<std::string, bool (*)(const Model &)> suites = {
        {"Every/Interface", anyExport},
        {"Every/Header", anyExport},
        {"Every/Values", anyExport},
        {"Every/SpecialValues", anyExport},
        {"Every/Guards", anyExport},
        {"Every/Status", anyExport},
        {"Every/FloatingPointEnvironment", anyExport},
        {"Every/InPlace", hasInPlaceSource},
        {"Every/Thresholds", isArrayExport},
        {"Every/Threads", isArrayExport},
    };
    const testing::UnitTest &program = *testing::UnitTest::GetInstance();
    std::size_t found = 0;
    for (int index = 0; index < program.total_test_suite_count(); ++index) {
        const testing::TestSuite &suite = *program.GetTestSuite(index);
        const auto known = suites.find(suite.name());
        if (known == suites.end()) {
            continue;
        }
        ++found;
        std::map<std::string, int> tests;
        for (int test = 0; test < suite.total_test_count(); ++test) {
            const std::string name = suite.GetTestInfo(test)->name();
            ++tests[name.substr(name.find('/') + 1)];
        }
        for (const Export *item : exportsThat(known->second)) {
            EXPECT_EQ(tests[item->model.name], 1) << suite.name() << " does not run " << item->model.name;
        }
    }
    EXPECT_EQ(found, suites.size());
}

} // namespace

} // namespace lxpm::test
