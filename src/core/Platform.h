#pragma once

#include "core/Locale.h"
#include "core/String.h"

#include <exception>
#include <functional>
#include <memory>

namespace phial
{

class AudioOutput;
class Clock;
class CoreCursors;
class CoreDialogs;
class CoreDisplay;
class CoreFolders;
class CoreFormDocument;
class CoreMachine;
class CoreMixer;
class CoreNetClient;
class CoreTextBoxOps;
class CoreWindowOps;
class Environment;
class EventPump;
class FileSystem;
class InterCom;
class RandomSource;
class RecordSeal;
class SettingsStore;
class Shell;
class VisualHost;

/// The outside as one bundle: what a program or a test hands to its session. Each entry may be left out; the
/// comment tells what stands in for it.
struct Platform {
    /// Left out: asking for it raises 91.
    std::shared_ptr<CoreDialogs> dialogs;
    std::shared_ptr<CoreFolders> folders;
    std::shared_ptr<CoreMachine> machine;
    std::shared_ptr<VisualHost> visual;

    /// Left out: nothing is found, nothing happens, False is answered; the pointer is told nowhere.
    std::shared_ptr<CoreWindowOps> windows;
    std::shared_ptr<CoreDisplay> display;
    std::shared_ptr<CoreCursors> cursors;
    std::shared_ptr<AudioOutput> audio;
    std::shared_ptr<CoreTextBoxOps> textBoxes;
    std::shared_ptr<Shell> shell;
    /// Left out: the level of this program's own sounds on `audio`.
    std::shared_ptr<CoreMixer> mixer;
    /// Left out: settings live in memory, for the session.
    std::shared_ptr<SettingsStore> settings;

    /// Left out: those of the process and of the standard library. The pump then runs timers and posted tasks
    /// on `clock`.
    std::shared_ptr<Clock> clock;
    std::shared_ptr<EventPump> pump;
    std::shared_ptr<Environment> environment;
    std::shared_ptr<RandomSource> random;
    std::shared_ptr<FileSystem> files;

    /// Left out: records with a password are neither read nor written.
    std::shared_ptr<RecordSeal> seal;

    /// Makers of what is new each time. Left out: the network client raises an error for each port and
    /// request, the messenger reaches nobody, and making a form document raises 91.
    std::function<std::shared_ptr<CoreNetClient>()> newNetClient;
    std::function<std::shared_ptr<InterCom>()> newInterCom;
    std::function<std::shared_ptr<CoreFormDocument>()> newFormDocument;

    /// The user's habits with numbers and dates, with which the session begins.
    Locale locale;

    /// The program's title, as its windows bear it.
    String programTitle = u"Phial";

    /// The folder of the program's file, as the system writes it, with a backslash at its end. Empty: not
    /// known, and no installation is looked for around it.
    String programFolder;

    /// Takes the error with which a handler ended at its dispatch. Left out: it is written to standard error.
    std::function<void(const std::exception&)> reportError;
};

/// The bundle with everything filled in that has something to stand in for it.
Platform withDefaults(Platform platform);

} // namespace phial
