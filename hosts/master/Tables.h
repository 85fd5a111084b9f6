#pragma once

#include <array>

namespace phial::master::tables
{

/// The tables of the store, in the SQL that SQLite and PostgreSQL share. Moments are texts such as
/// "2026-11-20 08:15:00", the teacher's local time; numbers of clients and messages are taken as signed.
inline constexpr std::array Create{
    "CREATE TABLE state (name TEXT PRIMARY KEY, value TEXT NOT NULL)",
    "CREATE TABLE settings (name TEXT PRIMARY KEY, value TEXT NOT NULL)",
    "CREATE TABLE messages (client BIGINT NOT NULL, number BIGINT NOT NULL, received TEXT NOT NULL, "
    "answer TEXT NOT NULL, PRIMARY KEY (client, number))",
    "CREATE INDEX messages_by_time ON messages (received)",
    "CREATE TABLE results (id INTEGER PRIMARY KEY, received TEXT NOT NULL, screen_name TEXT NOT NULL, "
    "user_name TEXT NOT NULL, computer TEXT NOT NULL, exercise TEXT NOT NULL, "
    "points DOUBLE PRECISION NOT NULL, points_max DOUBLE PRECISION NOT NULL, additional TEXT NOT NULL)",
    "CREATE TABLE submissions (id INTEGER PRIMARY KEY, received TEXT NOT NULL, module TEXT NOT NULL, "
    "screen_name TEXT NOT NULL, user_name TEXT NOT NULL, computer TEXT NOT NULL, exercise TEXT NOT NULL, "
    "points DOUBLE PRECISION NOT NULL, points_max DOUBLE PRECISION NOT NULL, additional TEXT NOT NULL, "
    "answer TEXT NOT NULL)",
    "CREATE TABLE events (id INTEGER PRIMARY KEY, received TEXT NOT NULL, screen_name TEXT NOT NULL, "
    "user_name TEXT NOT NULL, computer TEXT NOT NULL, action TEXT NOT NULL, additional TEXT NOT NULL)",
    "CREATE TABLE highscores (module TEXT PRIMARY KEY, list TEXT NOT NULL)",
    "CREATE TABLE log_ons (client BIGINT PRIMARY KEY, received TEXT NOT NULL, name TEXT NOT NULL, "
    "address TEXT NOT NULL)",
};

/// Tables that have joined without a new version, since an older master does without them.
inline constexpr std::array CreateLater{
    "CREATE TABLE IF NOT EXISTS changes (id INTEGER PRIMARY KEY, received TEXT NOT NULL, action TEXT NOT "
    "NULL, "
    "about TEXT NOT NULL)",
    "CREATE TABLE IF NOT EXISTS list_origins (module TEXT PRIMARY KEY, address TEXT NOT NULL, "
    "received TEXT NOT NULL)",
};

/// Each statement is written once; its address is what tells it from the others.
inline constexpr const char* AnswerTo = "SELECT answer FROM messages WHERE client = ? AND number = ?";
inline constexpr const char* KeepAnswer =
    "INSERT INTO messages (client, number, received, answer) VALUES (?, ?, ?, ?)";
inline constexpr const char* OldAnswers =
    "SELECT client, number FROM messages WHERE received < ? OR received <= "
    "(SELECT received FROM messages ORDER BY received DESC LIMIT 1 OFFSET ?) LIMIT ?";
inline constexpr const char* ForgetAnswer = "DELETE FROM messages WHERE client = ? AND number = ?";

inline constexpr const char* LastResult = "SELECT COALESCE(MAX(id), 0) FROM results";
inline constexpr const char* AddResult =
    "INSERT INTO results (id, received, screen_name, user_name, computer, exercise, points, points_max, "
    "additional) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)";
inline constexpr const char* LatestResults =
    "SELECT received, screen_name, user_name, computer, exercise, points, points_max, additional, id "
    "FROM results ORDER BY id DESC LIMIT ?";
inline constexpr const char* ResultsAfter =
    "SELECT received, screen_name, user_name, computer, exercise, points, points_max, additional, id "
    "FROM results WHERE id > ? ORDER BY id LIMIT ?";
inline constexpr const char* ResultOf =
    "SELECT received, screen_name, user_name, computer, exercise, points, points_max, additional, id "
    "FROM results WHERE id = ?";
inline constexpr const char* RemoveResult = "DELETE FROM results WHERE id = ?";
inline constexpr const char* HandedInSince =
    "SELECT screen_name, MAX(received) FROM results WHERE received >= ? GROUP BY screen_name";

inline constexpr const char* ScreenNames =
    "SELECT screen_name FROM results UNION SELECT screen_name FROM submissions "
    "UNION SELECT screen_name FROM events UNION SELECT name FROM log_ons";
inline constexpr std::array Rename{
    "UPDATE results SET screen_name = ? WHERE screen_name = ?",
    "UPDATE submissions SET screen_name = ? WHERE screen_name = ?",
    "UPDATE events SET screen_name = ? WHERE screen_name = ?",
    "UPDATE log_ons SET name = ? WHERE name = ?",
};

inline constexpr const char* LastChange = "SELECT COALESCE(MAX(id), 0) FROM changes";
inline constexpr const char* AddChange =
    "INSERT INTO changes (id, received, action, about) VALUES (?, ?, ?, ?)";
inline constexpr const char* LatestChanges =
    "SELECT received, action, about FROM changes ORDER BY id DESC LIMIT ?";

inline constexpr const char* LastSubmission = "SELECT COALESCE(MAX(id), 0) FROM submissions";
inline constexpr const char* AddSubmission =
    "INSERT INTO submissions (id, received, screen_name, user_name, computer, exercise, points, points_max, "
    "additional, module, answer) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";

inline constexpr const char* LastEvent = "SELECT COALESCE(MAX(id), 0) FROM events";
inline constexpr const char* AddEvent =
    "INSERT INTO events (id, received, screen_name, user_name, computer, action, additional) "
    "VALUES (?, ?, ?, ?, ?, ?, ?)";
inline constexpr const char* LatestEvents =
    "SELECT received, screen_name, user_name, computer, action, additional "
    "FROM events ORDER BY id DESC LIMIT ?";

inline constexpr const char* Modules = "SELECT module FROM highscores";
inline constexpr const char* ScoreList = "SELECT list FROM highscores WHERE module = ?";
inline constexpr const char* KeepScoreList =
    "INSERT INTO highscores (module, list) VALUES (?, ?) ON CONFLICT (module) DO UPDATE SET list = "
    "excluded.list";

inline constexpr const char* RemoveScoreList = "DELETE FROM highscores WHERE module = ?";
inline constexpr const char* ListOrigins = "SELECT module, address, received FROM list_origins";
inline constexpr const char* KeepListOrigin =
    "INSERT INTO list_origins (module, address, received) VALUES (?, ?, ?) ON CONFLICT (module) "
    "DO UPDATE SET address = excluded.address, received = excluded.received";
inline constexpr const char* RemoveListOrigin = "DELETE FROM list_origins WHERE module = ?";

inline constexpr const char* Settings = "SELECT name, value FROM settings";
inline constexpr const char* KeepSetting =
    "INSERT INTO settings (name, value) VALUES (?, ?) ON CONFLICT (name) DO UPDATE SET value = "
    "excluded.value";
inline constexpr const char* ForgetSetting = "DELETE FROM settings WHERE name = ?";

inline constexpr const char* State = "SELECT value FROM state WHERE name = ?";
inline constexpr const char* KeepState =
    "INSERT INTO state (name, value) VALUES (?, ?) ON CONFLICT (name) DO UPDATE SET value = excluded.value";

inline constexpr const char* LogOns = "SELECT client, received, name, address FROM log_ons";
inline constexpr const char* KeepLogOn =
    "INSERT INTO log_ons (client, received, name, address) VALUES (?, ?, ?, ?) ON CONFLICT (client) "
    "DO UPDATE SET received = excluded.received, name = excluded.name, address = excluded.address";
inline constexpr const char* ForgetLogOn = "DELETE FROM log_ons WHERE client = ?";
inline constexpr const char* ForgetLogOns = "DELETE FROM log_ons WHERE received < ?";

} // namespace phial::master::tables
