#include "molmasse/TrainerData.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "common/FormulaCard.h"
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

std::optional<learning::TaskFault> faultOf(const phial::cls_DataElements& elements, const String& formula)
{
    if (const auto fault = learning::FormulaCard::faultOf(formula, elements)) {
        return fault;
    }
    const String counted = withoutDots(formula);
    if (counted.empty()) {
        return learning::TaskFault::NoTask;
    }
    const double mass = elements.MOL(counted);
    const bool isClear = canBeJudged(massesOf(counted, mass, elements.exactMass(counted).value_or(mass)));
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
    data.tasks = learning::TaskList(TaskFileName,
                                    [&](const String& formula) { return faultOf(*data.elements, formula); });
    if (data.tasks.isEmpty()) {
        data.missingFile = data.tasks.path();
    }
    return data;
}

} // namespace molmasse
