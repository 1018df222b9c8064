// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What lxpm does for somebody with a triangle mesh: each step computes on the mesh's own memory, is timed, and is held
// against a plain loop; then the mesh is drawn from what the steps have computed.

#include "agreement.h"
#include "file_error.h"
#include "job.h"
#include "mesh_reader.h"
#include "options.h"
#include "output_file.h"
#include "picture/contact_sheet.h"
#include "picture/png_encoder.h"
#include "steps/steps.h"
#include "steps/viewing.h"

#include <iostream>

namespace lxpm::mesh {

namespace {

using Clock = std::chrono::steady_clock;

void finishOutput() {
    if (!std::cout.flush()) {
        throw FileError("cannot write to the standard output");
    }
}

void computeSurface(Surface &surface, Job &job) {
    for (const auto makeStep : surfaceSteps) {
        job.run(makeStep(surface));
    }
}

void computeViews(const Surface &surface, Stage &stage, Job &job) {
    job.run(rotations(stage));
    job.run(cameras(stage));
    job.run(perspective(stage));
    job.run(turnedVertices(surface, stage));
    job.run(projectedVertices(stage));
}

void printSurface(const Surface &surface, const std::string &path) {
    std::cout << path << ": " << grouped(surface.vertices.size()) << " vertices, " << grouped(surface.triangles.size())
              << " triangles, " << grouped(surface.edges.size()) << " edges\n";
    printBounds(std::cout, "in the file", boundsOf(surface.asRead));
    printBounds(std::cout, "centred, scaled", boundsOf(surface.vertices));
    std::cout << '\n';
}

// What two independent ways to the same thing make of it.
void printAgreements(const Surface &surface) {
    const NormalAgreement normals = agreementOfNormals(surface);
    std::cout << "\nnormals from points alone: half of them within " << fixed(normals.medianDegrees, 1)
              << " degrees of the triangles' normals, " << fixed(normals.percentWithin30Degrees, 1) << " % within 30\n";
    if (const std::optional<double> correlation = correlationOfCurvatures(surface)) {
        std::cout << "mean curvatures of paraboloids: correlation " << fixed(*correlation, 3)
                  << " with those by area gradients\n";
    }
}

void printTimes(const Job &job, int repeat, Seconds whole) {
    Seconds oneRun{}, allRuns{};
    for (const Measurement &measurement : job.measurements()) {
        oneRun += measurement.fastest;
        allRuns += measurement.all;
    }
    std::cout << "\nlibrary: " << fixed(oneRun.count() * 1e3, 2) << " ms for one run of each step, "
              << fixed(allRuns.count() * 1e3, 2) << " ms for all " << repeat << "; that is "
              << fixed(100 * allRuns / whole, 1) << " % of the whole program's " << fixed(whole.count() * 1e3, 1)
              << " ms\n";
}

// Whether all of them agree; says so where one does not.
bool allAgree(const std::vector<Measurement> &measurements) {
    bool agree = true;
    for (const Measurement &m : measurements) {
        if (!m.agrees()) {
            std::cerr << "mesh: " << m.step << ": the results of " << m.function << " deviate by "
                      << fixed(m.deviation, 2) << " roundings, and should by no more than " << fixed(m.limit, 1)
                      << '\n';
            agree = false;
        }
    }
    return agree;
}

void writePicture(const Surface &surface, const Stage &stage, const Options &options, Progress &progress) {
    const Image sheet = drawContactSheet(surface, stage, options.size, progress);
    progress.clear();
    writeFile(options.output, encodePng(sheet));
    std::cout << "picture: " << options.output << ", " << sheet.width() << " x " << sheet.height() << " pixels\n";
}

int run(const Options &options, Clock::time_point programBegin) {
    Progress progress;
    Surface surface(readMesh(options.input, progress));
    Job job(options.repeat, progress);
    computeSurface(surface, job);
    Stage stage(options.views, surface.vertices, options.size * samplesPerPixel);
    computeViews(surface, stage, job);
    progress.clear();

    printSurface(surface, options.input);
    printTable(std::cout, job.measurements());
    printAgreements(surface);
    const bool agree = allAgree(job.measurements());
    if (agree && !options.output.empty()) {
        writePicture(surface, stage, options, progress);
    }
    printTimes(job, options.repeat, Clock::now() - programBegin);
    finishOutput();
    return agree ? 0 : 1;
}

} // namespace

} // namespace lxpm::mesh

int main(int argc, char **argv) {
    using namespace lxpm::mesh;
    const auto begin = std::chrono::steady_clock::now();
    try {
        const Options options = parseOptions(argc, argv);
        if (options.help) {
            std::cout << usage;
            finishOutput();
            return 0;
        }
        return run(options, begin);
    } catch (const UsageError &error) {
        std::cerr << "mesh: " << error.what() << "\nTry 'mesh --help'.\n";
        return 2;
    } catch (const FileError &error) {
        std::cerr << "mesh: " << error.what() << '\n';
        return 2;
    } catch (const std::exception &error) {
        std::cerr << "mesh: " << error.what() << '\n';
        return 1;
    }
}
