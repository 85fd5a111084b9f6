#pragma once

#include "core/String.h"

#include <filesystem>
#include <optional>
#include <string>

namespace phial::master
{

/// Where the master's database is: a file, or a PostgreSQL server.
struct StorePlace {
    /// The file's native path; empty for a server.
    std::filesystem::path file;

    /// Of the server. What is empty (0) is left to the environment and the client library's defaults.
    std::string host;
    int port = 0;
    std::string database;
    std::string user;
    std::string password;

    bool isServer() const { return file.empty(); }
    /// As messages name it, without a password.
    std::string shown() const;
};

/// Reads `postgresql://[user[:password]@][host][:port]/database[?host=folder]`, where the host may be the
/// folder of a local socket, or the native path of a file. No value for a URL that is none of this form.
std::optional<StorePlace> parseStorePlace(const std::string& text);

} // namespace phial::master
