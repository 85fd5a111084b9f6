#include "master/StoreWords.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"

namespace phial::master
{

String storeWords(const StoreTrouble& trouble)
{
    const Variant::Array text{fromUtf8(trouble.text)};
    switch (trouble.reason) {
    case StoreError::Reason::Database:
        return LNG()->TRANSLATE(u"die Datenbank meldet einen Fehler: {1}",
                                u"the database reports an error: {1}", text);
    case StoreError::Reason::InUse:
        return LNG()->TRANSLATE(u"ein anderer Master benutzt {1}, oder der Ordner ist nicht beschreibbar",
                                u"another master is using {1}, or the folder cannot be written", text);
    case StoreError::Reason::Missing:
        return LNG()->TRANSLATE(u"noch leer: {1}", u"still empty: {1}", text);
    case StoreError::Reason::OtherProgram:
        return LNG()->TRANSLATE(u"das ist die Datenbank eines anderen Programms: {1}",
                                u"this is the database of another program: {1}", text);
    case StoreError::Reason::LaterVersion:
        return LNG()->TRANSLATE(u"die Datenbank ist von einer neueren Version des Masters: {1}",
                                u"the database is of a later version of the master: {1}", text);
    case StoreError::Reason::Unreachable:
        return LNG()->TRANSLATE(u"die Datenbank ist nicht erreichbar: {1}",
                                u"the database cannot be reached: {1}", text);
    }
    return fromUtf8(trouble.text);
}

} // namespace phial::master
