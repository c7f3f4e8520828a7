#include "core/decks/CardEditing.h"

CardWorkingFiles& WorkingFiles() {
    static CardWorkingFiles files;
    return files;
}

ChooserMemory& RememberedPictureFolder() {
    static ChooserMemory memory;
    return memory;
}

ChooserMemory& RememberedSoundFolder() {
    static ChooserMemory memory;
    return memory;
}

void ResetDeckDesignState() {
    WorkingFiles() = CardWorkingFiles{};
    RememberedPictureFolder() = ChooserMemory{};
    RememberedSoundFolder() = ChooserMemory{};
}
