#pragma once
// Installing the package unpacked in Temp/: its attachment, then its decks,
// their cards and its spreads merged into the live files. Every design gets a
// fresh id and every card file a fresh name; a design whose name is taken
// goes through the design-exists question, and each spread is tied to decks
// by the user.
//
// Nothing is written until everything is settled. A package whose records
// contradict each other is refused before anything is asked; one that holds
// designs as the program packs them, with files or locations left out, is
// installed as it stands. Then the whole installation is planned (every
// question answered, every id and name drawn, every record built) and
// written in one step through a DesignCommit: the files go into Cards/ and
// each record file is built beside the real one, and only then are they put
// in place, all together as far as a crash is concerned. Card records under
// an id that no deck holds then (a replaced deck's, or left under an id that
// a new deck takes) go with the files only they name; spreads tied to a
// replaced deck follow it to its new id.
//
// The installation asks the user nothing itself: it asks through
// InstallationQuestions, which the install screen answers with its screens
// and tests answer directly.
#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <set>
#include <vector>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"

class TakenStems;

// A package's attachment is unpacked under this prefix and its own name.
inline const QString AttachmentPrefix = QStringLiteral("ATT - ");

// A list of ids read from a record file, grown a fixed number of entries at a
// time. Entries past the last one read are 0, and searches stop at a 0 entry.
struct GrownIdList {
    BoundedArray<Integer> Ids;
    int Capacity = 0;
    int Count = 0;
    void Reset();
    void Add(Integer id, int step);
};

// What the user said to a design whose name is installed already.
struct DesignExistsReply {
    int Choice = 0;   // a DesignExistsAnswer
    QString NewName;  // after a rename
};

class InstallationQuestions {
public:
    virtual ~InstallationQuestions() = default;
    // "Save Attachment As", proposing `proposed`: the file name chosen, or
    // an empty one when the user cancels.
    virtual QString AttachmentTarget(const QString& proposed) = 0;
    // The deck or spread (DesignDeck, DesignSpread) of that name exists. A
    // new name is checked with nameInUse, given 30 padded characters. A
    // question closed unanswered gives back DesignExistsChoice as it stood.
    virtual DesignExistsReply DesignExists(int design, const QString& title,
                                           const std::function<bool(const QString&)>& nameInUse) = 0;
    // Ties the spread in CurrentSpread to decks, starting from none: fills
    // its AllowedDeckCount and AllowedDeckId, and may change
    // InstallAllSpreads. `decks` are every deck as the installation leaves
    // them, those it adds included.
    virtual void ChooseDecks(const std::vector<DeckRecord>& decks) = 0;
};

enum class InstallOutcome {
    Installed,            // the summary follows
    AttachmentCancelled,  // nothing installed
    Incompatible,         // record files of foreign lengths; nothing installed
    Refused,              // records that contradict each other; see Refusal
};

// Why the package unpacked in Temp/ cannot be installed as it stands (the
// message for the user), or an empty string when its records agree with each
// other and with what the fields can hold.
QString PackageProblem();

class PackageInstallation {
public:
    // attachmentFile: the name of the package's attachment, empty for none.
    PackageInstallation(InstallationQuestions& ask, const QString& attachmentFile);

    // Raises a RuntimeError on an error part-way; the record files are then
    // as they were.
    InstallOutcome Install();

    int DecksInstalled = 0;
    int SpreadsInstalled = 0;
    bool AttachmentSaved = false;
    QString AttachmentFile;  // the attachment's name, then where it was saved
    QString Refusal;

    // The rename check of the design-exists question: the padded name it
    // is given against the untrimmed names installed before, exactly. The
    // widths differ, so no name is ever in use.
    bool NameIsInDeckInstalledArray(const QString& name) const;
    bool NameIsInSpreadInstalledArray(const QString& name) const;

private:
    bool SaveAttachment();
    void ReserveCardFileNames();
    void LoadInstalledDecks();
    void LoadInstalledSpreads();
    int AskDesignExists(int design, const QString& title);
    void InstallDecks();
    void InstallCards();
    void InstallSpreads();
    void InstallSpread(int i, int& position, TakenStems& backgrounds);
    void RemapSpread(int i);
    void InstallSpreadBackground(TakenStems& backgrounds);
    void ReplaceSpreadLocations(int count);
    void LinkToExistingDecks();
    Integer MapDeckId(Integer oldId);
    QString TakeUnpackedFile(const QString& recorded, const QString& newName);
    Integer ReplacementOf(Integer id) const;
    bool RetieSpread(SpreadRecord& spread) const;
    void Commit();

    InstallationQuestions& ask_;

    int PackageCardCount = 0;
    BoundedArray<QString> NewUprightNames, NewReversedNames, NewUprightSoundNames, NewReversedSoundNames;
    GrownIdList PackageDeckIds, NewDeckIds, InstalledDeckIds;
    GrownIdList PackageSpreadIds, NewSpreadIds, InstalledSpreadIds;
    BoundedArray<QString> InstalledDeckNames, InstalledSpreadNames;  // 50 characters, untrimmed
    Integer LastOldDeckId = 0;
    Integer LastNewDeckId = 0;
    int ChosenDeckCount = -1;
    std::array<Integer, 10> ChosenDeckIds{};
    bool FirstLinkPending = true;
    QString newDesignName_;  // the answer to the last rename

    // The plan. Decks.dck and Spreads.spr as they will be, and which of
    // their records change; the ids decks held before; each overwritten
    // deck's id and the id it takes; the cards to add; each installed
    // spread's locations; the files to put into Cards/ and the old
    // backgrounds to delete afterwards.
    std::vector<DeckRecord> decks_;
    std::vector<SpreadRecord> spreads_;
    std::set<int> changedDecks_, changedSpreads_;
    std::set<Integer> heldBefore_;
    std::vector<std::pair<Integer, Integer>> replacedDecks_;
    std::vector<CardRecord> cards_;
    std::vector<std::pair<Integer, std::vector<LocationRecord>>> locations_;
    struct FileTake {
        QString From;  // a name in Temp/
        QString To;    // a fresh name in Cards/
    };
    std::vector<FileTake> files_;
    QStringList oldBackgrounds_;
};
