#pragma once
// The host side of the extensions: firing an event for the plug-ins (PLUGSTART) and
// running an add-on (AddOnStart) by the one start and wait protocol. The host writes
// the hand-over files, clears the lock file, starts the program without a shell and
// waits in the wait window until the lock file appears, the time is up or the timeout
// box ends it. An add-on's event calls then refresh the views.
//
// A program that cannot be found or started is told in the error box, and the firing
// goes on with the next plug-in.

#include <string>

#include "extensions/declaration.h"
#include "extensions/hand_over.h"
#include "extensions/wait_mode.h"
#include "platform/program_start.h"

namespace zvx {

class Common;

// What an add-on may ask of the active document when it has finished.
enum class AddOnEventCall {
    HardRefresh,    // the tree emptied and rebuilt, then the list
    Refresh,        // the tree rebuilt, then the list
    ListRefresh,    // the list
    FolderRefresh,  // the tree
    TocReset,       // the header fix-up of the working copy
};

// The windows as the host needs them.
class ExtensionWindows {
  public:
    virtual ~ExtensionWindows() = default;
    // What the active window (a document or the search window) shows.
    virtual HandOverFacts handOverFacts() const = 0;
    // Repaints the active window; nothing when there is none.
    virtual void repaintActive() = 0;
    // The wait window, modal, for the program `exeName`, ending by the wait's rules.
    virtual void showWait(const std::string& exeName, const WaitMode& wait) = 0;
    // Carries out an event call on the active document; may throw, which is ignored.
    virtual void eventCall(AddOnEventCall call) = 0;
};

class ExtensionHost {
  public:
    ExtensionHost(Common& common, ExtensionWindows& windows);

    // Starts, one after the other, each plug-in whose event list holds the name and "#".
    // The hand-over files are written before the first of them, and not at all when none
    // declared the event.
    void PLUGSTART(const std::string& eventName);
    // Runs the add-on of a call string, then its event calls (also after a timeout, and
    // at once for the wait mode "no"; never after a refused timeout).
    void AddOnStart(const std::string& callString);
    // Writes the hand-over files for the event without starting anything, as the
    // exchange dialogs do before they run a filter.
    void HandOver(const std::string& eventName);
    // The event calls of a list; an unknown name is told and the others run.
    void EventStart(const std::string& events, const std::string& command);
    // Whether the plug-in has created the lock file; if so it has halted.
    bool PLUGHALT();

    bool pluginHalted = false;
    int pluginTaskId = 0;

  private:
    struct Refusal {
        const char* caption;
        const char* text;
    };
    // The protocol from the command line on: lock file, start, wait. False when the wait
    // mode was refused (the program runs all the same).
    bool startAndWait(const std::string& exe, const std::string& modal, const Refusal& refusal);
    void fireFor(const std::string& eventName, const ExtensionDeclaration& plugIn,
                 bool& handedOver);

    Common& common_;
    ExtensionWindows& windows_;
    ProgramStarts programs_;
};

}  // namespace zvx
