#pragma once
// The reading screen and the table of face-down cards below it work on one
// deal (ReadingDeal, in the core). What only a screen can do for the other
// goes through these two faces, so that neither screen knows the other's
// class: frmReadingCards is the table, frmNewReading the reading.

// The table, as the reading screen drives it.
class ReadingTable {
public:
    virtual void ShowTable() = 0;
    virtual void HideTable() = 0;
    // Lays a fresh table over the one standing.
    virtual void LayAgain() = 0;
    virtual void PickRandomCard() = 0;
    // The animation runs until StopShuffle.
    virtual void FakeShuffle() = 0;
    virtual void StopShuffle() = 0;
    // Keeps the table below the reading screen.
    virtual void MoveForm() = 0;

protected:
    ~ReadingTable() = default;
};

// The table, loaded at first use; the table if it is loaded, else nullptr;
// and the table unloaded if it is.
ReadingTable& Table();
ReadingTable* LoadedTable();
void UnloadTable();

// The reading screen, as the table tells it what happened.
class TableWatcher {
public:
    // The table has loaded (true) or unloaded: the reading screen follows it
    // while it stands.
    virtual void TableLoaded(bool loaded) = 0;
    // The buttons turn to drawing from the table, or to dealing a new one.
    virtual void TableUp() = 0;
    virtual void TableGone() = 0;
    virtual void EnableShuffle(bool enabled) = 0;
    // The deal has put a card into the location: the screen shows it.
    virtual void CardDealt(int location) = 0;
    // The reading screen takes the focus back from the table.
    virtual void TakeFocus() = 0;
    // Where the table stands: the left edge and the bottom of the reading
    // screen, twips.
    virtual int TableLeft() const = 0;
    virtual int TableTop() const = 0;

protected:
    ~TableWatcher() = default;
};

// The reading screen if it is loaded, else nullptr.
TableWatcher* ReadingScreen();
