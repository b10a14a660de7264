#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/drawing.h"
#include "forms/form_host.h"

namespace horavex {

class Focusable;
class RuntimeMembers;

/// Why a form is asked to close.
enum class CloseReason {
    kUser = 0,         // the window's system menu or close box
    kCode = 1,         // Unload
    kSessionEnd = 2,   // the user's session ends
    kTaskManager = 3,  // the system's task manager
};

/// The form closes unless a handler sets cancel.
struct CloseRequest {
    CloseReason reason;
    bool cancel = false;
};

enum class WindowState { kNormal = 0, kMinimized = 1, kMaximized = 2 };

/// A window without a toolkit. A class of windows derives from it and has its controls as named
/// members, in the order in which they are to be visited.
///
/// Its life: unloaded, loaded and hidden, loaded and shown. Only Load and the calls that show it
/// load it; touching a control never does. When it unloads, all values go back to those of the
/// definition, so that the next load brings these and whatever was set in between.
class Form : public Element {
public:
    Form(std::string name, ControlValues definition = {});
    ~Form() override;

    Handler onLoad;
    Handler onUnload;
    Handler onActivate;  // the form becomes the one that the user works with
    Handler onPaint;     // fills drawing, which is empty by then
    Handler onResize;    // another size or window state
    std::function<void(CloseRequest&)> onCloseRequest;

    /// What the last Paint drew, in twips from the upper left corner of the inside.
    Drawing drawing;

    /// All controls, in the order of their definition; those made at run time come last.
    const std::vector<Control*>& Controls() const { return controls_; }

    bool IsLoaded() const { return loaded_; }
    void Load();

    /// Asks to close, at once; unless that is cancelled the form unloads as soon as none of its
    /// own handlers is running.
    void Unload(CloseReason reason = CloseReason::kCode);

    /// Loads the form if need be, shows it and makes it active.
    void Show(Form* owner = nullptr);

    /// The same, and returns when the form is hidden again. One that is shown so already comes to
    /// the front, and the call returns at once.
    void ShowModal(Form* owner = nullptr);
    void Hide();
    void SetVisible(bool visible) override;

    /// The form in front of which it was last shown; nullptr for none.
    Form* Owner() const { return owner_; }
    bool IsModal() const { return modal_; }

    /// Makes a visible form the active one and fires onActivate, unless it is active already.
    void Activate();

    WindowState State() const { return static_cast<WindowState>(Now().windowState); }
    void SetWindowState(WindowState state);

    /// Topic of the help file for this form.
    int HelpContextId() const { return Now().helpContextId; }
    void SetHelpContextId(int topic) { Assign(&ControlValues::helpContextId, topic); }

    Focusable* FocusHolder() const { return focus_; }

    /// Draws anew through onPaint. For front ends, when they need the drawing.
    void Paint();

    /// Asks the front end to paint.
    void Refresh() { Changed(); }

    /// What a front end reports.
    void UserClose() { Unload(CloseReason::kUser); }
    void UserActivate() { Activate(); }
    void UserHelp();

    /// nullptr for none. Not owned.
    void SetObserver(FormObserver* observer) { observer_ = observer; }

    Form& OwnerForm() override { return *this; }
    bool LetsUserIn() const override { return Enabled(); }

protected:
    void Changed() override;
    void Resized() override { Run(onResize); }

private:
    friend class Control;
    friend class Focusable;
    friend class RuntimeMembers;

    void Run(const Handler& handler);
    void HandlerReturned();

    bool AgreesToClose(CloseReason reason);
    void FinishUnload();
    void Vanish();
    void RestoreAll();
    void Present(Form* owner, bool modal);
    void MoveFocus(Focusable* next);

    void Add(Control& control);
    void Remove(Control& control);
    int NextTabIndex() const;
    int NextStacking() { return ++topStacking_; }
    void ControlHasChanged(Control& control);

    std::vector<Control*> controls_;
    std::vector<RuntimeMembers*> arrays_;
    FormObserver* observer_ = nullptr;
    Form* owner_ = nullptr;
    Focusable* focus_ = nullptr;
    int topStacking_ = 0;
    int runningHandlers_ = 0;
    bool loaded_ = false;
    bool modal_ = false;
    bool closing_ = false;        // from the close request to its refusal or the unload's end
    bool unloadPending_ = false;  // agreed, and put off until the running handlers are done
};

/// The form that the user works with; nullptr for none.
Form* ActiveForm();

/// What the help key does on a form; nothing before it is installed, and in a fresh process.
void InstallHelpKey(std::function<void(Form&)> helpKey);

}  // namespace horavex
