#include "master/StorePlace.h"

#include <charconv>
#include <string_view>

namespace phial::master
{

namespace
{

std::optional<int> hexDigit(char sign)
{
    constexpr std::string_view Digits = "0123456789abcdef";
    const char lower = sign >= 'A' && sign <= 'F' ? static_cast<char>(sign - 'A' + 'a') : sign;
    const std::size_t at = Digits.find(lower);
    return at == std::string_view::npos ? std::nullopt : std::optional(static_cast<int>(at));
}

/// A part of a URL without its percent signs.
std::string unescaped(std::string_view part)
{
    std::string text;
    for (std::size_t at = 0; at < part.size(); ++at) {
        const auto high = part[at] == '%' && at + 2 < part.size() ? hexDigit(part[at + 1]) : std::nullopt;
        const auto low = high ? hexDigit(part[at + 2]) : std::nullopt;
        text += low ? static_cast<char>(*high * 16 + *low) : part[at];
        at += low ? std::size_t{2} : 0;
    }
    return text;
}

/// What stands before the sign, which goes with it; without the sign nothing is taken.
std::optional<std::string_view> takeUntil(std::string_view& text, char sign)
{
    const std::size_t at = text.find(sign);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view front = text.substr(0, at);
    text.remove_prefix(at + 1);
    return front;
}

bool readPort(std::string_view text, int& port)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    return error == std::errc() && end == text.data() + text.size() && port > 0 && port <= 65535;
}

bool readAuthority(std::string_view text, StorePlace& place)
{
    if (auto user = takeUntil(text, '@')) {
        const auto name = takeUntil(*user, ':');
        place.user = unescaped(name.value_or(*user));
        place.password = name ? unescaped(*user) : std::string();
    }
    const std::size_t colon = text.rfind(':');
    place.host = unescaped(text.substr(0, colon));
    return colon == std::string_view::npos || readPort(text.substr(colon + 1), place.port);
}

/// The first part of a list that the sign divides, which goes with the sign.
std::string_view takePart(std::string_view& list, char sign)
{
    const std::string_view all = list;
    if (const auto part = takeUntil(list, sign)) {
        return *part;
    }
    list = {};
    return all;
}

bool readQuery(std::string_view text, StorePlace& place)
{
    while (!text.empty()) {
        std::string_view value = takePart(text, '&');
        const std::string_view name = takePart(value, '=');
        if (name == "host") {
            place.host = unescaped(value);
        } else if (name != "port" || !readPort(value, place.port)) {
            return false;
        }
    }
    return true;
}

std::optional<StorePlace> parseServer(std::string_view text)
{
    StorePlace place;
    const std::size_t question = text.find('?');
    const std::string_view query = question == std::string_view::npos ? "" : text.substr(question + 1);
    std::string_view rest = text.substr(0, question);
    const auto authority = takeUntil(rest, '/');
    place.database = unescaped(rest);
    const bool isComplete = authority && readAuthority(*authority, place) && !place.database.empty();
    return isComplete && readQuery(query, place) ? std::optional(place) : std::nullopt;
}

} // namespace

std::string StorePlace::shown() const
{
    if (!isServer()) {
        return file.string();
    }
    return "postgresql://" + host + (port > 0 ? ":" + std::to_string(port) : "") + "/" + database;
}

std::optional<StorePlace> parseStorePlace(const std::string& text)
{
    for (const std::string_view scheme : {"postgresql://", "postgres://"}) {
        if (text.starts_with(scheme)) {
            return parseServer(std::string_view(text).substr(scheme.size()));
        }
    }
    if (text.empty() || text.find("://") != std::string::npos) {
        return std::nullopt;
    }
    StorePlace place;
    place.file = text;
    return place;
}

} // namespace phial::master
