// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PresetFileWriter.h"

#include "presets/manager/ReplacementFile.h"
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/MemoryStream.h"
#include "presets/record/StdFileStream.h"
#include "presets/record/Utf8Path.h"

#include <algorithm>
#include <span>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace {

using FileReplacement::Answer;
using Bytes = std::span<const std::byte>;

/// How far a write has to have come when it is reported done.
enum class Reach {
    Medium, ///< survives a power cut
    System, ///< survives the process
};

std::int32_t lengthOf(Bytes bytes) {
    return static_cast<std::int32_t>(bytes.size()); // a stream holds no more
}

/// Appends what a file holds beyond a position.
Answer copyTail(StdFileStream& from, std::int32_t position, ReplacementFile& to) {
    constexpr std::int32_t blockSize = 65536;
    const std::int32_t size = from.size();
    if (size < 0)
        return Answer::Failed;
    std::vector<std::byte> block;
    from.seek(position);
    while (position < size) {
        const std::int32_t count = std::min(size - position, blockSize);
        block.resize(static_cast<std::size_t>(count));
        if (from.read(count, block.data()) || to.write(block) != Answer::Done)
            return Answer::Failed;
        position += count;
    }
    return Answer::Done;
}

/// Composes the result beside the target and swaps it in. The old file, where there is one, is
/// closed on the way: some systems replace no open file.
Answer swapIn(const fs::path& target, Bytes record, StdFileStream* old, Reach reach) {
    const bool toMedium = reach == Reach::Medium;
    ReplacementFile replacement(target);
    Answer answer = replacement.create();
    if (answer == Answer::Done && old != nullptr)
        answer = replacement.copyRights();
    if (answer == Answer::Done)
        answer = replacement.write(record);
    if (answer == Answer::Done && old != nullptr)
        answer = copyTail(*old, lengthOf(record), replacement);
    if (answer == Answer::Done)
        answer = replacement.close(toMedium);
    if (old != nullptr)
        static_cast<void>(old->close()); // was only read
    if (answer == Answer::Done)
        answer = replacement.replaceTarget();
    if (answer == Answer::Done && toMedium)
        FileReplacement::flushFolderToMedium(target.parent_path());
    return answer;
}

/// Overwrites the beginning of a file. True on success.
bool writeBeginning(const fs::path& target, Bytes bytes, Reach reach) {
    std::FILE* const file = FileReplacement::openForUpdate(target);
    StdFileStream stream(file);
    const bool written = stream.isOpen() && !stream.write(lengthOf(bytes), bytes.data()) &&
                         (reach == Reach::System || FileReplacement::flushToMedium(file));
    return !stream.close() && written;
}

bool writeOver(const fs::path& target, Bytes record, Reach reach) {
    StdFileStream old(FileReplacement::openForUpdate(target));
    const std::int32_t size = old.size();
    if (size < 0)
        return false;
    std::vector<std::byte> beginning(static_cast<std::size_t>(std::min(size, lengthOf(record))));
    if (old.read(lengthOf(beginning), beginning.data()) || old.close())
        return false;
    if (writeBeginning(target, record, reach))
        return true;
    writeBeginning(target, beginning, reach);
    std::error_code ignored;
    fs::resize_file(target, static_cast<std::uintmax_t>(size), ignored);
    return false;
}

/// Writes the identifier alone, which lies at the end, where the file holds the rest of the record
/// already; refused where it does not. So few bytes are written at once or not at all, and a file
/// with either identifier is whole. Swapping thousands of files, as the first scan of a collection
/// would, takes many times as long.
Answer writeIdentifier(StdFileStream& file, Bytes record) {
    constexpr std::size_t identifierSize = sizeof(QMGenericPreset::uniqueId);
    const Bytes rest = record.first(record.size() - identifierSize);
    std::vector<std::byte> present(rest.size());
    if (file.size() != lengthOf(record) || file.read(lengthOf(rest), present.data()) ||
        !std::equal(present.begin(), present.end(), rest.begin()))
        return Answer::Refused;
    file.seek(lengthOf(rest)); // between reading and writing the C runtime wants one
    if (file.write(identifierSize, record.last(identifierSize).data()) || file.close())
        return Answer::Failed;
    return Answer::Done;
}

enum class Missing { Make, Leave };

bool write(const std::string& path, const QMGenericPreset& record, Missing missing, Reach reach) {
    constexpr std::int32_t usualSize = 1024;
    MemoryStream encoded(usualSize);
    if (!writeGenericPreset(record, encoded))
        return false;
    const fs::path target = FileReplacement::resolveLinks(pathFromUtf8(path));
    std::error_code error;
    if (fs::status(target, error).type() == fs::file_type::not_found)
        return missing == Missing::Make &&
               swapIn(target, encoded.bytes(), nullptr, reach) == Answer::Done;
    if (!FileReplacement::isMeantToBeWritten(target))
        return false;
    StdFileStream old(FileReplacement::openForUpdate(target));
    if (!old.isOpen())
        return false;
    Answer answer = Answer::Refused;
    if (reach == Reach::System)
        answer = writeIdentifier(old, encoded.bytes());
    if (answer == Answer::Refused)
        answer = swapIn(target, encoded.bytes(), &old, reach);
    if (answer == Answer::Refused)
        return writeOver(target, encoded.bytes(), reach);
    return answer == Answer::Done;
}

} // namespace

bool PresetFileWriter::save(const std::string& path, const QMGenericPreset& record) {
    return write(path, record, Missing::Make, Reach::Medium);
}

bool PresetFileWriter::updateExisting(const std::string& path, const QMGenericPreset& record) {
    return write(path, record, Missing::Leave, Reach::System);
}
