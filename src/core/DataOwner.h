#pragma once

#include "core/String.h"

#include <memory>

namespace phial
{

class CoreDataStream;
class tmp_Data;

/// What a `DATA` header asks of the record that owns it. Only the record knows its fields.
class DataOwner
{
public:
    virtual ~DataOwner() = default;

    /// Takes over all fields of a record of the same class; false when the source is of another class.
    virtual bool DataCopy(tmp_Data& pSource) = 0;
    /// The record as one text.
    virtual String DataPACK() = 0;
    /// Restores the record from such a text.
    virtual void DataUnpack(StringView pText) = 0;
    /// Writes the record's values, its version first.
    virtual void DataStore(CoreDataStream& pStream) = 0;
    /// Reads the record's values.
    virtual void DataRead(CoreDataStream& pStream) = 0;
    /// A new empty record of the same class.
    virtual std::shared_ptr<tmp_Data> DataSpawn() = 0;
};

} // namespace phial
