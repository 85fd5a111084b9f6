#include "puzzle/PuzzleTasks.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "common/Drawing.h"

#include <algorithm>

namespace puzzle
{

using learning::TaskFault;
using phial::String;
using phial::StringView;

namespace
{

using Elements = std::vector<const ElementFacts*>;

std::vector<StringView> symbolsIn(StringView task)
{
    constexpr StringView Separators = u" ,\t";
    std::vector<StringView> symbols;
    while (!task.empty()) {
        const auto end = std::min(task.find_first_of(Separators), task.size());
        if (end > 0) {
            symbols.push_back(task.substr(0, end));
        }
        task.remove_prefix(std::min(end + 1, task.size()));
    }
    return symbols;
}

bool holds(const Elements& elements, const ElementFacts* element)
{
    return std::ranges::find(elements, element) != elements.end();
}

Elements elementsOf(const learning::TaskLevel& level, const ElementBook& book)
{
    Elements all;
    for (const learning::ListedTask& task : level.tasks) {
        for (const ElementFacts* const element : elementsOf(task.text, book)) {
            if (!holds(all, element)) {
                all.push_back(element);
            }
        }
    }
    return all;
}

/// Others of the level, so that no place follows from being the last one.
Elements decoys(const Elements& tiles, const learning::TaskLevel& level, const ElementBook& book)
{
    Elements others = elementsOf(level, book);
    std::erase_if(others, [&](const ElementFacts* element) { return holds(tiles, element); });
    constexpr std::size_t Least = 4;
    return learning::drawTasks(std::move(others), std::max(tiles.size(), Least), learning::randomBelow,
                               [](const ElementFacts*) { return false; });
}

bool isTop(const ElementFacts& element, const ElementBook& book)
{
    return !book.above(element);
}

} // namespace

Guides guidesOf(StringView key)
{
    return key == u"leer" ? Guides::None : key == u"gruppen" ? Guides::Tops : Guides::Neighbours;
}

Elements elementsOf(StringView task, const ElementBook& book)
{
    Elements elements;
    for (const StringView symbol : symbolsIn(task)) {
        const ElementFacts* const element = book.find(symbol);
        if (!element || holds(elements, element)) {
            return {};
        }
        elements.push_back(element);
    }
    return elements;
}

std::optional<TaskFault> faultOf(const String& task, const ElementBook& book)
{
    const auto symbols = symbolsIn(task);
    if (std::ranges::any_of(symbols, [&](StringView symbol) { return !book.find(symbol); })) {
        return TaskFault::UnknownElement;
    }
    if (symbols.size() > MostTiles) {
        return TaskFault::TooLong;
    }
    return elementsOf(task, book).empty() ? std::optional(TaskFault::NoTask) : std::nullopt;
}

std::set<int> emptyPlaces(const Elements& tiles, const learning::TaskLevel& level, const ElementBook& book)
{
    std::set<int> empty;
    const Guides guides = guidesOf(level.key);
    for (const ElementFacts& element : book.all()) {
        if (holds(tiles, &element) || guides == Guides::None ||
            (guides == Guides::Tops && !isTop(element, book))) {
            empty.insert(element.protons);
        }
    }
    if (guides == Guides::Neighbours) {
        for (const ElementFacts* const decoy : decoys(tiles, level, book)) {
            empty.insert(decoy->protons);
        }
    }
    return empty;
}

PuzzleData loadPuzzleData()
{
    PuzzleData data;
    data.elementFile = phial::QVAPP()->URL()->DATASHARED() + u"elements2.dat";
    data.elements = ElementBook(data.elementFile);
    data.tasks =
        learning::TaskList(TaskFileName, [&](const String& task) { return faultOf(task, data.elements); });
    return data;
}

} // namespace puzzle
