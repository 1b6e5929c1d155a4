// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/tests/ParameterTemporaryFile.h"

#include "services/Log.h"

#include <random>
#include <stdexcept>

namespace parameterTest {
namespace {

std::filesystem::path newPath() {
    std::random_device random;
    std::filesystem::path path;
    do
        path = std::filesystem::temp_directory_path() /
               ("qm-parameter-test-" + std::to_string(random()) + ".txt");
    while (std::filesystem::exists(path));
    return path;
}

} // namespace

TemporaryFile::TemporaryFile()
    : path(newPath())
    , file(std::fopen(path.string().c_str(), "wb+")) {
    if (file == nullptr)
        throw std::runtime_error("cannot write " + path.string());
}

TemporaryFile::~TemporaryFile() {
    std::fclose(file);
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

std::string TemporaryFile::text() const {
    std::fflush(file);
    std::rewind(file);
    std::string all;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
        all += static_cast<char>(c);
    std::fseek(file, 0, SEEK_END);
    return all;
}

LogCapture::LogCapture(std::uint32_t maximumLevel)
    : levelBefore(QM::processLog().level()) {
    QM::processLog().setMaximumLevel(maximumLevel);
    QM::processLog().suppressTimestamps();
    QM::processLog().setSecondSink(file.stream(), 0);
}

LogCapture::~LogCapture() {
    QM::processLog().setSecondSink(nullptr, 0);
    QM::processLog().resumeTimestamps();
    QM::processLog().setMaximumLevel(levelBefore);
}

} // namespace parameterTest
