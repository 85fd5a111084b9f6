#include "molmasse/TrainerData.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "chem/ElementFileReader.h"
#include "chem/FormulaAnalysis.h"
#include "common/FormulaCard.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "molmasse/MassJudge.h"
#include "molmasse/SaltParts.h"

namespace molmasse
{

using phial::String;

namespace
{

std::shared_ptr<phial::cls_DataElements> readElements(const String& file)
{
    auto elements = std::make_shared<phial::cls_DataElements>();
    phial::ignoringErrors([&] { elements->IMPORT2(file); });
    return elements->COUNT() > 0 ? elements : nullptr;
}

} // namespace

std::map<String, double> readExactMasses(phial::StringView text)
{
    std::map<String, double> masses;
    phial::ElementFileReader reader(phial::ElementFileReader::Format::FiveLines);
    for (phial::StringView line : phial::split(text, u"\n")) {
        if (line.ends_with(u'\r')) {
            line.remove_suffix(1);
        }
        if (const auto record = reader.take(line)) {
            masses[record->symbol] = record->exactMass;
        }
    }
    return masses;
}

std::optional<double> exactMass(const std::map<String, double>& masses, phial::StringView formula)
{
    double sum = 0;
    for (const phial::AtomCount& atoms : phial::AtomCounts(formula)) {
        const auto mass = masses.find(String(atoms.symbol));
        if (mass == masses.end()) {
            return std::nullopt;
        }
        sum += mass->second * atoms.count;
    }
    return sum;
}

std::optional<learning::TaskFault> faultOf(const phial::cls_DataElements& elements,
                                           const std::map<String, double>& exactMasses, const String& formula)
{
    if (const auto fault = learning::FormulaCard::faultOf(formula, elements)) {
        return fault;
    }
    const String counted = withoutDots(formula);
    if (counted.empty()) {
        return learning::TaskFault::NoTask;
    }
    const double mass = elements.MOL(counted);
    const bool isClear = canBeJudged(massesOf(counted, mass, exactMass(exactMasses, counted).value_or(mass)));
    return isClear ? std::nullopt : std::optional(learning::TaskFault::Ambiguous);
}

TrainerData loadTrainerData()
{
    TrainerData data;
    const String elementFile = phial::QVAPP()->URL()->DATASHARED() + u"elements2.dat";
    data.elements = readElements(elementFile);
    if (!data.elements) {
        data.missingFile = elementFile;
        return data;
    }
    phial::ignoringErrors(
        [&] { data.exactMasses = readExactMasses(phial::coreRoot().CoreFiles().ReadText(elementFile)); });
    data.tasks = learning::TaskList(TaskFileName, [&](const String& formula) {
        return faultOf(*data.elements, data.exactMasses, formula);
    });
    if (data.tasks.isEmpty()) {
        data.missingFile = data.tasks.path();
    }
    return data;
}

} // namespace molmasse
