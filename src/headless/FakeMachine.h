#pragma once

#include "core/CoreMachine.h"
#include "core/String.h"

#include <string>
#include <utility>

namespace phial::headless
{

/// A computer whose facts a test sets.
class FakeMachine : public CoreMachine
{
public:
    String UserName() const override { return userName_; }
    void UserName(String value) { userName_ = std::move(value); }
    String ComputerName() const override { return computerName_; }
    void ComputerName(String value) { computerName_ = std::move(value); }
    String OSVersion() const override { return osVersion_; }
    void OSVersion(String value) { osVersion_ = std::move(value); }

    std::int32_t UserLanguage() const override { return userLanguage_; }
    void UserLanguage(std::int32_t value) { userLanguage_ = value; }

    /// "ID-1", "ID-2" and so on.
    String NewUniqueID(std::int32_t /*pKind*/, std::int32_t /*pOptions*/) override
    {
        return u"ID-" + fromUtf8(std::to_string(++lastId_));
    }

private:
    String userName_ = u"pupil";
    String computerName_ = u"DESK-1";
    String osVersion_ = u"6.1";
    std::int32_t userLanguage_ = 0;
    int lastId_ = 0;
};

} // namespace phial::headless
