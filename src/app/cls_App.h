#pragma once

#include "app/SubObject.h"
#include "core/String.h"

#include <memory>

namespace phial
{

class InterCom;
class cls_AppConfig;
class cls_AppDialog;
class cls_AppMRU;
class cls_AppMedia;
class cls_AppRate;
class cls_AppServer;
class cls_AppTexts;
class cls_AppTools;
class cls_AppURL;
class cls_AppUser;
class cls_Language;

/// The root: the one object through which a program starts the system and reaches its parts, `QVAPP()`.
///
/// It owns its sub-objects. Each is created when its property is first read and lives as long as the root; a
/// caller may replace it by another of its class. The host sets CONFIG.IDENT, calls INIT, calls READY when
/// its window stands, and DEINIT at the end, which the end of the session does too.
class cls_App
{
public:
    cls_App();
    /// Runs DEINIT, so that a host which called it itself runs it twice; that does no harm.
    ~cls_App();
    cls_App(const cls_App&) = delete;
    cls_App& operator=(const cls_App&) = delete;

    /// Starts the run with the program's command line. Raises what fails on the way, such as 5 when no
    /// installation was found. It may be called again and then repeats all steps; the parameters of the
    /// command line are set again.
    void INIT(String pCmd);
    /// The same without contact to the classroom's master.
    void INITSTANDALONE(String pCmd);
    /// Ends the run; nothing is raised.
    void DEINIT();
    /// Tells the start centre that the program is ready. No answer is awaited.
    void READY();

    /// The language object, the same as `LNG()`; it outlives the root.
    const std::shared_ptr<cls_Language>& LANGUAGE() const;

    /// The root of the settings key for recent files and the server's address.
    const String& REGKEY() const { return registryKey_; }
    void REGKEY(String value) { registryKey_ = std::move(value); }

    /// Folders.
    const std::shared_ptr<cls_AppURL>& URL();
    void URL(std::shared_ptr<cls_AppURL> value);

    /// Sounds.
    const std::shared_ptr<cls_AppMedia>& MEDIA();
    void MEDIA(std::shared_ptr<cls_AppMedia> value);

    /// Settings and command line.
    const std::shared_ptr<cls_AppConfig>& CONFIG();
    void CONFIG(std::shared_ptr<cls_AppConfig> value);

    /// Chemistry tools.
    const std::shared_ptr<cls_AppTools>& TOOLS();
    void TOOLS(std::shared_ptr<cls_AppTools> value);

    /// Recent files; made when CONFIG.IDENT is set.
    const std::shared_ptr<cls_AppMRU>& MRU();
    void MRU(std::shared_ptr<cls_AppMRU> value);

    /// Dialogs.
    const std::shared_ptr<cls_AppDialog>& DIALOG();
    void DIALOG(std::shared_ptr<cls_AppDialog> value);

    /// Who works with the program.
    const std::shared_ptr<cls_AppUser>& USER();
    void USER(std::shared_ptr<cls_AppUser> value);

    /// Marks and result lists.
    const std::shared_ptr<cls_AppRate>& RATE();
    void RATE(std::shared_ptr<cls_AppRate> value);

    /// The client of the classroom's master.
    const std::shared_ptr<cls_AppServer>& SERVER();
    void SERVER(std::shared_ptr<cls_AppServer> value);

    /// Words of praise.
    const std::shared_ptr<cls_AppTexts>& TEXTS();
    void TEXTS(std::shared_ptr<cls_AppTexts> value);

    /// The messenger to the other programs of the suite. Made at the start, not set before.
    const std::shared_ptr<InterCom>& INTERCOM() const { return interCom_; }
    void INTERCOM(std::shared_ptr<InterCom> value) { interCom_ = std::move(value); }

private:
    String registryKey_ = u"Software\\QV Brunnhof\\Phial\\";
    SubObject<cls_AppURL> url_;
    SubObject<cls_AppMedia> media_;
    SubObject<cls_AppConfig> config_;
    SubObject<cls_AppTools> tools_;
    SubObject<cls_AppMRU> mru_;
    SubObject<cls_AppDialog> dialog_;
    SubObject<cls_AppUser> user_;
    SubObject<cls_AppRate> rate_;
    SubObject<cls_AppServer> server_;
    SubObject<cls_AppTexts> texts_;
    std::shared_ptr<InterCom> interCom_;
};

} // namespace phial
