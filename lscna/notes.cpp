#include "lscna/notes.h"

#include <algorithm>

void add_note(Notes& notes, const hba_info& port, const std::string& text) {
    if (text.empty()) {
        return;
    }
    auto note = std::ranges::find_if(notes, [&](const Note& other) {
        return other.text == text && other.adapter == port.serial_no;
    });
    if (note == notes.end()) {
        note = notes.insert(note, {text, port.serial_no});
    }
    if (note->functions.empty() || note->functions.back() != port.pci_function) {
        note->functions.emplace_back(port.pci_function);
    }
}
