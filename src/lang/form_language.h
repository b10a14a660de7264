#pragma once

#include <string>

#include "forms/control.h"
#include "forms/form.h"

namespace horavex {

/// "_" and the control's index; empty for a control that belongs to no array.
std::string ControlIndexSuffix(const Control& control);

/// True where Caption can be read.
bool HasCaption(const Control& control);

/// True where ToolTipText can be read and holds something.
bool HasToolTip(const Control& control);

/// True for a control whose caption the program works out itself: no pack writes it.
bool IsRuntimeControl(const Control& control);

/// True for a control whose texts come from a pack: one of the seven kinds with a caption that is
/// no runtime control.
bool TakesPackTexts(const Control& control);

/// Keys of a control in the section of its form: "optAsrRatio_1", "optAsrRatioTTIP_1".
std::string CaptionKey(const Control& control);
std::string ToolTipKey(const Control& control);

/// Writes the texts of the pack of that path over the form's. A caption without a key becomes
/// empty, and so does a tooltip that the control had; a form without one is titled by its name.
/// The face's window hands its six texts over to the face besides.
void LoadFormLanguage(Form& form, const std::string& packPath);

/// Hands the titles of the face's four menus over to it, as the pack of that path has them. A
/// title that the pack lacks is empty.
void SetMenuBar(const std::string& packPath);

/// LoadFormLanguage with the current pack, if the language menu has seen any. What a form does
/// first at its load, and the face's window at a change of language.
void TranslateOnLoad(Form& form);

}  // namespace horavex
