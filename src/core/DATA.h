#pragma once

#include "core/DataOwner.h"
#include "core/FileSystem.h"
#include "core/String.h"
#include "core/Variant.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <utility>

namespace phial
{

/// The file from which a record was loaded, or to which it was saved, last.
struct LoadedFile {
    enum class State : std::uint8_t {
        None,   ///< it was neither
        Absent, ///< there was none
        Gone,   ///< there was none although the session has seen it before
        Partly, ///< there is one of which not all was taken in, or nothing
        Whole,  ///< the record held what the file does
    };

    State state = State::None;
    std::filesystem::path path = {};
    FileStatus status = {}; ///< of the file then
};

/// The header of a record: its ID, its class tag, and the operations that every record has.
///
/// The header does not know the fields; it asks its owner. It can outlive the owner: every operation that
/// needs the owner then raises 91. A record holds its header through a `DataHolder`, which binds and releases
/// it.
class DATA
{
public:
    DATA() = default;
    DATA(const DATA&) = delete;
    DATA& operator=(const DATA&) = delete;

    /// In practice a text.
    const Variant& ID() const { return id_; }
    void ID(Variant value) { id_ = std::move(value); }

    /// Library and class, such as "QVPhial.cls_DataScores".
    const String& ClassTag() const { return classTag_; }
    void ClassTag(String value) { classTag_ = std::move(value); }

    /// The record as one text, and back.
    String Pack() const;
    void Unpack(StringView pText) const;

    /// The record's values to and from a stream.
    void Store(CoreDataStream& pStream) const;
    void Read(CoreDataStream& pStream) const;

    /// Takes over the fields of `pSource`; false when that is of another class.
    bool Copy(tmp_Data& pSource) const;

    /// A new empty record of the same class.
    std::shared_ptr<tmp_Data> Spawn() const;

    /// `loadRecord` and `saveRecord` keep this. A save puts the file aside unless it was whole and is still
    /// the same.
    const LoadedFile& loadedFile() const { return loadedFile_; }
    void loadedFile(LoadedFile file) { loadedFile_ = std::move(file); }

private:
    friend class DataHolder;
    DataOwner& owner() const;

    Variant id_;
    String classTag_;
    LoadedFile loadedFile_;
    DataOwner* owner_ = nullptr;
};

/// Keeps a record's header bound to the record for as long as both live together.
class DataHolder
{
public:
    /// Makes the header. `owner` is the record that has this holder as a member.
    explicit DataHolder(DataOwner& owner, String classTag = {});
    ~DataHolder();
    DataHolder(const DataHolder&) = delete;
    DataHolder& operator=(const DataHolder&) = delete;

    const std::shared_ptr<DATA>& get() const { return data_; }

    /// Replaces the header: the old one loses its owner, the new one belongs to this record from now on.
    /// Raises 91 for null.
    void set(std::shared_ptr<DATA> data);

private:
    void release();

    DataOwner* owner_;
    std::shared_ptr<DATA> data_;
};

} // namespace phial
