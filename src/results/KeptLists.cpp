#include "results/KeptLists.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CorePathText.h"
#include "core/KeptRecords.h"

namespace phial
{

namespace
{

String sentenceFor(const KeptRecord& record)
{
    const Variant file = CorePathText::FileName(record.file);
    const Variant keptAs = CorePathText::FileName(record.keptAs);
    switch (record.reason) {
    case KeptRecord::Reason::Damaged:
        return LNG()->TRANSLATE(u"Die Liste „{1}“ war beschädigt. Sie ist als „{2}“ aufgehoben.",
                                u"The list “{1}” was damaged. It is kept as “{2}”.", {file, keptAs});
    case KeptRecord::Reason::NotRead:
        return LNG()->TRANSLATE(u"Die Liste „{1}“ ließ sich nicht lesen. Sie ist als „{2}“ aufgehoben.",
                                u"The list “{1}” could not be read. It is kept as “{2}”.", {file, keptAs});
    case KeptRecord::Reason::Gone:
        break;
    }
    return LNG()->TRANSLATE(u"Die Liste „{1}“ ist verschwunden.", u"The list “{1}” has disappeared.", {file});
}

} // namespace

String untoldKeptLists()
{
    String text;
    String folder;
    for (const KeptRecord& record : keptRecords().takeUntold()) {
        text += sentenceFor(record) + u"\r";
        folder = CorePathText::Folder(record.file);
    }
    if (!text.empty()) {
        text +=
            LNG()->TRANSLATE(u"Eine neue Liste hat begonnen. Bitte sage deiner Lehrkraft Bescheid.\r({1})",
                             u"A new list has begun. Please tell your teacher.\r({1})", {folder});
    }
    return text;
}

} // namespace phial
