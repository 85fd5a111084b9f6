#include "app/cls_AppMRU.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringOps.h"
#include "core/RuntimeError.h"
#include "visual/Form.h"

namespace phial
{

namespace
{

constexpr StringView MenuSeparator = u"mnu_FileMRUSep";
constexpr StringView EntryArray = u"mnu_FileMRU";
constexpr std::int32_t CaptionLength = 50;

void unloadEntries(Menu& holder)
{
    for (std::int32_t index = holder.upperBound(EntryArray); index >= 1; --index) {
        ignoringErrors([&] { holder.unload(EntryArray, index); }); // indices may be missing
    }
}

} // namespace

cls_AppMRU::cls_AppMRU()
{
    LOAD();
}

void cls_AppMRU::ENTRIES(std::shared_ptr<CoreStringList> value)
{
    if (!value) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    entries_ = std::move(value);
}

String cls_AppMRU::settingsPath()
{
    return QVAPP()->REGKEY() + QVAPP()->CONFIG()->IDENT() + u"\\MRU";
}

void cls_AppMRU::ADD(StringView pFile)
{
    const String entry = CorePathText::Relative(pFile, basePath_) + CorePathText::FileName(pFile);
    if (entries_->Exists(entry)) {
        entries_->Remove(entry);
    }
    entries_->Insert(entry, 1);
    UPDATE();
}

void cls_AppMRU::LOAD()
{
    entries_ = std::make_shared<CoreStringList>(
        coreRoot().CoreRegistry().CoreRegistryRead().ReadList(SettingsHive::CurrentUser, settingsPath()));
    UPDATE();
}

void cls_AppMRU::SAVE() const
{
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteList(SettingsHive::CurrentUser, settingsPath(),
                                                            *entries_);
}

void cls_AppMRU::UPDATE()
{
    if (!device_) {
        return;
    }
    ignoringErrors([this] { device_->control<Menu>(MenuSeparator)->Visible(false); });
    ignoringErrors([this] {
        const auto first = device_->control<Menu>(EntryArray, 0);
        Menu& holder = *first->above();
        first->Visible(false);
        unloadEntries(holder);
        for (std::int32_t position = 1; position <= entries_->Count(); ++position) {
            showEntry(holder, position);
        }
    });
    if (entries_->Count() > 0) {
        ignoringErrors([this] { device_->control<Menu>(MenuSeparator)->Visible(true); });
    }
}

void cls_AppMRU::showEntry(Menu& holder, std::int32_t position) const
{
    const String& entry = entries_->Item(position);
    const auto item = holder.load(EntryArray, position);
    item->Caption(trimmed(CoreStringOps::Shorten(CorePathText::WithoutExtension(entry), CaptionLength)));
    item->Tag(fullPath(entry));
    item->Visible(true);
}

String cls_AppMRU::fullPath(StringView entry) const
{
    return CorePathText::Absolute(basePath_, CorePathText::Folder(entry)) + CorePathText::FileName(entry);
}

void cls_AppMRU::CLEAN()
{
    std::int32_t position = 1;
    while (position <= entries_->Count()) {
        if (coreRoot().CoreFiles().Exists(fullPath(entries_->Item(position)))) {
            ++position;
        } else {
            entries_->RemoveAt(position);
        }
    }
}

} // namespace phial
