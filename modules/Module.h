#pragma once

#include "settings/ModuleKind.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>

class QWidget;

namespace kestrel {

class JKestrelSettingDispatcher;
class JobQueue;

/// What the host hands to a new module: one entry, "setting", the module's dispatcher. A module keeps it as long as it
/// reads settings.
using ModuleConfigure = QHash<QString, std::shared_ptr<JKestrelSettingDispatcher>>;
inline constexpr QStringView moduleSettingKey = u"setting";

/// Broadcast, without an object, when the user has confirmed to reset the conversion profiles; the modules own them.
inline constexpr QStringView keyResetProfilesNotification = u"keyResetProfilesNotification";

/// What the modules share; it outlives them.
class ModuleServices {
public:
    virtual ~ModuleServices() = default;
    /// The jobs of the whole program. The first call opens their store, so it is not for a module's constructor.
    virtual JobQueue &queue() = 0;
    /// Opens the converter with these files, soon.
    virtual void openInConverter(const QStringList &paths) = 0;
};

/// A module as the host sees it: this header is all that a module's author has to read.
///
/// The host makes each module once at launch (its constructor takes the configuration and, where it wants them, the
/// services) and keeps it until the application ends. It asks for the view at once, to remember its size, and then on
/// every switch: the view comes into the main window, at exactly that size, when the module is opened and goes out when
/// it is left or another module is opened. The first question is on the way to the
/// first window, so `LateView` makes what is in the view later. All calls come on the main thread.
class ModuleController {
public:
    using CompletedHandler = std::function<void(ModuleController *)>;

    virtual ~ModuleController() = default;

    /// Called once, after the constructor. The module calls the handler, with itself, whenever the user leaves it.
    virtual void setCompletedHandler(CompletedHandler handler) = 0;
    /// The module's root view, owned by the module; the host takes it out of the main window before the module goes.
    /// May be null.
    virtual QWidget *view() = 0;
    /// What the main window's title names, already localised; null for nothing.
    virtual QString windowTitle() const = 0;
    /// The window's close button: leaves the module, normally by calling the completed handler.
    virtual void doBackAction() = 0;
    /// Whether the main window may close.
    virtual bool shouldTerminate() = 0;
};

// Optional messages: a module derives from those that it wants to get.

class ModuleAppearance {
public:
    virtual ~ModuleAppearance() = default;
    virtual void markAppear() = 0;  ///< just before the view comes into the main window
};

class ModuleDisappearance {
public:
    virtual ~ModuleDisappearance() = default;
    virtual void onViewDidDisappear() = 0;  ///< another module, or the same again, takes its place
};

class ModuleSettingSync {
public:
    virtual ~ModuleSettingSync() = default;
    /// Conversion and DVD, when the application ends: write your settings through the dispatcher.
    virtual void syncSetting() = 0;
};

class ModuleFirstOpenTip {
public:
    virtual ~ModuleFirstOpenTip() = default;
    virtual void showFirstOpenAppTip(bool show) = 0;  ///< conversion, from the tip menu
};

class ModuleCoreUpdate {
public:
    virtual ~ModuleCoreUpdate() = default;
    virtual void checkCoreUpdateInBackground() = 0;  ///< download, each time it is opened
};

class ModuleRecorderSession {
public:
    virtual ~ModuleRecorderSession() = default;
    virtual void startRecorderSession() = 0;  ///< recording, when the opening transition has ended
};

class ModuleFileOpening {
public:
    virtual ~ModuleFileOpening() = default;
    /// Conversion, after it was opened for files: absolute paths.
    virtual void openFiles(const QStringList &paths) = 0;
};

using ModuleFactory = std::function<std::unique_ptr<ModuleController>(const ModuleConfigure &, ModuleServices &)>;

/// A kind that is missing, or whose factory answers null, leaves that module out.
using ModuleFactories = std::map<ModuleSettingKind, ModuleFactory>;

}  // namespace kestrel
