#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/form_instance.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/picture.h"

namespace horavex {

/// The small window of progress and of the alarm.
class MessageForm : public Form {
public:
    MessageForm();
    ~MessageForm() override;

    Label lblMessage1{*this, "lblMessage1"};
    Label lblMessage2{*this, "lblMessage2"};

    /// The progress frame and the bar in it.
    Shape Shape1{*this, "Shape1", {.width = 4800, .height = 300}};
    Picture picProgress{*this, "picProgress", {.width = 4770, .height = 270}};

    CommandButton Athan_Sound{*this, "Athan_Sound", {.caption = "Listen"}};
    CommandButton cmdFolder{*this, "cmdFolder", {.caption = "Open &folder", .visible = false}};
    CommandButton CmdCancel{*this, "CmdCancel", {.caption = "Cancel", .visible = false}};
    CommandButton cmdAlarmClose{*this, "cmdAlarmClose", {.caption = "Close", .visible = false}};
};

inline const FormInstance<MessageForm> fMessage;

}  // namespace horavex
