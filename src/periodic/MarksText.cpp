#include "periodic/MarksText.h"

#include "core/RuntimeError.h"

#include <algorithm>

namespace phial
{

namespace
{

String joinedWords(const CoreStringList& words)
{
    String text;
    for (const String& word : words) {
        text += text.empty() ? word : u" " + word;
    }
    return text;
}

} // namespace

String textOf(const CoreStringList& symbols)
{
    return joinedWords(symbols);
}

std::shared_ptr<CoreStringList> symbolsIn(StringView text)
{
    auto symbols = std::make_shared<CoreStringList>();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u' '), text.size());
        if (end > 0) {
            symbols->Add(String(text.substr(0, end)));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return symbols;
}

String textOf(const CoreTokenList& frames)
{
    CoreStringList words;
    for (std::int32_t position = 1; position <= frames.Count(); ++position) {
        const CoreToken& frame = frames.Item(position);
        if (frame.Values().Count() > 0) {
            words.Add(frame.Name());
            words.Add(frame.Values().Item(1).toText());
        }
    }
    return joinedWords(words);
}

std::shared_ptr<CoreTokenList> framesIn(StringView text)
{
    const auto words = symbolsIn(text);
    if (words->Count() % 2 != 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    auto frames = std::make_shared<CoreTokenList>();
    for (std::int32_t word = 1; word < words->Count(); word += 2) {
        frames->Add(words->Item(word), Variant(words->Item(word + 1)).toWhole());
    }
    return frames;
}

} // namespace phial
