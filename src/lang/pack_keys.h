#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"

namespace horavex {

/// The keys that the program asks a pack for in one section.
struct PackSection {
    std::string name;
    std::vector<std::string> keys;
};

/// The vocabularies of a pack: messages, labels with the Hijri months and the prayer names,
/// the texts of the athan window, and what desktops of some kind bring along.
const std::vector<PackSection>& PackVocabularies();

/// The keys of one form, as it stands: its own name for its caption, then in the order of its
/// controls the caption of each that takes its texts from a pack, with the tooltip where the
/// control has one.
std::vector<std::string> FormPackKeys(const Form& form);

/// The whole of a pack: the vocabularies, then a section for each of PackForms, with what the form
/// reads of it beside the walk.
std::vector<PackSection> PackSections();

/// Every form that translates itself at its load, made anew and not loaded: as its definition has
/// it, whatever a running one shows. A new form that does so goes on this list.
std::vector<std::unique_ptr<Form>> PackForms();

}  // namespace horavex
