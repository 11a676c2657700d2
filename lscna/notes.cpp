#include "lscna/notes.h"

#include <algorithm>

void add_note(Notes& notes, const std::string& text) {
    if (std::ranges::none_of(notes, [&](const Note& note) { return note.text == text; })) {
        notes.push_back({text});
    }
}

void add_note(Notes& notes, const hba_info& port, const std::string& text) {
    auto note = std::ranges::find_if(notes, [&](const Note& other) {
        return other.text == text && (other.functions.empty() || other.adapter == port.serial_no);
    });
    if (note == notes.end() && !text.empty()) {
        notes.push_back({text, port.serial_no, {port.pci_function}});
    } else if (note != notes.end() && !note->functions.empty() &&
               note->functions.back() != port.pci_function) {
        note->functions.emplace_back(port.pci_function);
    }
}
