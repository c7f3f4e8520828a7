#pragma once
// Every screen of the program, each opened on a small sample much as a user
// reaches it, for the tests that look at all of them in each language. A
// screen with pages has a row for each page; tabs are left to the test.
// A row opens its screen and hands it, while on show, to the test's look: a
// modal screen is looked at inside its own run and then cancelled.
#include <QApplication>
#include <QDir>
#include <functional>

#include "core/decks/CardEditing.h"
#include "diary/DiaryFixtures.h"
#include "screens/decks/frmAddCard.h"
#include "screens/decks/frmBrowseDeck.h"
#include "screens/decks/frmDeckCardProperties.h"
#include "screens/decks/frmDeckCardPropertiesInfo.h"
#include "screens/decks/frmDeckComments.h"
#include "screens/decks/frmDeckCommentsInfo.h"
#include "screens/decks/frmDeckInfo.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/decks/frmGetImageFile.h"
#include "screens/decks/frmGetSoundFile.h"
#include "screens/decks/frmImportPictures.h"
#include "screens/decks/frmSaveDeck.h"
#include "screens/decks/frmViewCard.h"
#include "screens/diary/frmDiaryHelp.h"
#include "screens/journal/frmJournal.h"
#include "screens/packages/PackageSummary.h"
#include "screens/packages/frmCreatePackage.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/readings/frmQuickHelp.h"
#include "screens/readings/frmReadingInterpretLocation.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "screens/shell/frmHelpViewer.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmGetSpreadBackground.h"
#include "screens/spreads/frmLocationAttributes.h"
#include "screens/spreads/frmSaveSpread.h"
#include "screens/spreads/frmSpreadComments.h"
#include "screens/spreads/frmSpreadInfo.h"
#include "screens/spreads/frmSpreadInfo_LocationAttributes.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/store/frmConvert.h"
#include "screens/store/frmDesignExists.h"
#include "screens/store/frmGetPassword.h"
#include "screens/store/frmSetPassword.h"

namespace Screens {

using Look = std::function<void(QWidget&)>;
using Opener = std::function<void(const Look&)>;
struct Screen {
    const char* Name;
    Opener Open;
};

// The sample: deck "Tarot" of three cards with their reversed pictures, the
// spread "Celtic Cross" of three locations tied to it, a reading and a diary
// entry made with both, and the record files of a package unpacked in Temp/.
inline void LaySample(const QString& dir) {
    Fixtures::UseProgramDir(dir);
    MsgBoxScript::Clear();
    const Integer deck = Fixtures::MakeDeck(QStringLiteral("Tarot"), 3, true);
    const Integer spread = Fixtures::MakeSpread(QStringLiteral("Celtic Cross"), 3, {deck});
    ReadingFixtures::StoredEntry<ReadingRecord>(TheRun.Paths.ReadingsPath, deck, spread, 0, 0);
    ReadingFixtures::StoredEntry<DiaryRecord>(TheRun.Paths.DiaryPath, deck, spread, 0, 0);
    QFile::copy(TheRun.Paths.DecksPath, TheRun.Paths.TempDir + QStringLiteral("Temp.dck"));
    QFile::copy(TheRun.Paths.SpreadsPath, TheRun.Paths.TempDir + QStringLiteral("Temp.spr"));
    RememberedPictureFolder().Folder = RememberedSoundFolder().Folder = TheRun.Paths.CardsDir;
}

using Steps = std::function<void()>;

// Shows T after the steps that lead to it and looks at it.
template <class T>
Opener After(const Steps& steps = [] {}) {
    return [steps](const Look& look) {
        steps();
        Get<T>().Show();
        look(Get<T>());
    };
}

// The first deck or spread on its list (chosen as the list opens), then a
// button of the list; then, as the case may be, a page of the screen it led
// to, the first card or location taken up.
inline Steps OnDecks(void (frmDecks::*button)()) {
    return [button] {
        Get<frmDecks>().Show();
        (Get<frmDecks>().*button)();
    };
}
inline Steps OnSpreads(void (frmSpreads::*button)()) {
    return [button] {
        Get<frmSpreads>().Show();
        (Get<frmSpreads>().*button)();
    };
}
template <class T>
Steps Page(const Steps& steps, void (T::*page)()) {
    return [steps, page] {
        steps();
        (Get<T>().*page)();
    };
}
inline Steps FirstCard(const Steps& steps) {
    return [steps] {
        steps();
        TheRun.CurrentCard = TheRun.CurrentDeck.DeckCards(1);
        TheRun.DesignMode = 0;
    };
}
inline Steps FirstLocation(const Steps& steps) {
    return [steps] {
        steps();
        TheRun.SelectedLocation = 1;
    };
}
inline const Steps NewReading = FirstLocation([] { ReadingFixtures::NewReading(); });
inline const Steps NewDiary = FirstLocation([] { DiaryFixtures::NewDiary(); });
// Past the introduction to the spread, the reading's cards dealt.
inline const Steps Dealing = [] {
    frmNewReading& reading = ReadingFixtures::NewReading();
    for (QPushButton* button : {reading.cmdContinue, reading.cmdAllCards, reading.cmdDeal}) button->click();
};
inline const Steps Keeping = [] { DiaryFixtures::NewDiary().cmdContinue->click(); };
inline Steps Interpreting(const Steps& steps) {
    return [steps] {
        steps();
        Get<frmNewReading>().cmdInterpret->click();
    };
}

// A package's summary as created or installed.
template <class T>
Steps Counted(bool created) {
    return [created] {
        Get<T>().ShowCounts(1, 1);
        Get<T>().SetAttachment(created, QStringLiteral("Notes.txt"));
        if constexpr (std::is_same_v<T, frmCreatePackageSummary>)
            Get<T>().ShowPackageFile(QStringLiteral("Tarot.pck"), TheRun.Paths.PackagesDir);
    };
}

// The deck chooser as a package's installation shows it, offering the
// sample's decks.
inline void OfferDecks() {
    static std::vector<DeckRecord> offered;
    offered = ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath);
    Get<frmSpreads>().Show();
    TheRun.ChooserManageMode = false;
    TheRun.DecksOnOffer = &offered;
}

// The picture import over the deck designer, the sample's card pictures
// proposed, which runs modally.
inline void ImportPictures(const Look& look) {
    OnDecks (&frmDecks::cmdEdit_Click)();
    ModalScript script;
    script.On<frmImportPictures>([look](frmImportPictures& screen) {
        look(screen);
        screen.cmdCancel->click();
    });
    Get<frmImportPictures>().ShowFolder(TheRun.Paths.CardsDir);
}

// The card choice of the diary's first location, which runs modally.
inline void DiaryCards(const Look& look) {
    Keeping();
    ModalScript script;
    script.On<frmDiaryCards>([look](frmDiaryCards& cards) {
        look(cards);
        cards.cmdCancel->click();
    });
    Get<frmNewDiary>().cmdCardTitle(1)->click();
}

inline QList<Screen> Every() {
    const Steps edit = OnDecks(&frmDecks::cmdEdit_Click), view = OnDecks(&frmDecks::cmdInfo_Click);
    const Steps design = OnSpreads(&frmSpreads::cmdEdit_Click), info = OnSpreads(&frmSpreads::cmdInfo_Click);
    return {
        {"frmMainScreen", After<frmMainScreen>()},
        {"frmQuickHelp", After<frmQuickHelp>()},
        {"frmDiaryHelp", After<frmDiaryHelp>()},
        {"frmHelpViewer", After<frmHelpViewer>()},
        {"frmConvert", After<frmConvert>()},
        {"frmDesignExists", After<frmDesignExists>()},
        {"frmGetPassword", After<frmGetPassword>()},
        {"frmSetPassword", After<frmSetPassword>()},
        {"frmDecks", After<frmDecks>()},
        {"frmDesignDeck", After<frmDesignDeck>(edit)},
        {"frmDeckInfo", After<frmDeckInfo>(view)},
        {"frmAddCard", After<frmAddCard>(FirstCard(edit))},
        {"frmViewCard", After<frmViewCard>(FirstCard(view))},
        {"frmDeckCardProperties", After<frmDeckCardProperties>(edit)},
        {"frmDeckCardPropertiesInfo", After<frmDeckCardPropertiesInfo>(view)},
        {"frmDeckComments", After<frmDeckComments>(edit)},
        {"frmDeckCommentsInfo", After<frmDeckCommentsInfo>(view)},
        {"frmGetImageFile", After<frmGetImageFile>(FirstCard(edit))},
        {"frmGetSoundFile", After<frmGetSoundFile>(FirstCard(edit))},
        {"frmImportPictures", ImportPictures},
        {"frmSaveDeck", After<frmSaveDeck>(edit)},
        {"frmBrowseDeck", After<frmBrowseDeck>()},
        {"frmSpreads", After<frmSpreads>()},
        {"frmDesignSpread details", After<frmDesignSpread>(design)},
        {"frmDesignSpread layout", After<frmDesignSpread>(Page(design, &frmDesignSpread::cmdSpread_Click))},
        {"frmDesignSpread decks", After<frmDesignSpread>(Page(design, &frmDesignSpread::cmdDecks_Click))},
        {"frmSpreadInfo details", After<frmSpreadInfo>(info)},
        {"frmSpreadInfo layout", After<frmSpreadInfo>(Page(info, &frmSpreadInfo::cmdSpread_Click))},
        {"frmSpreadInfo decks", After<frmSpreadInfo>(Page(info, &frmSpreadInfo::cmdDecks_Click))},
        {"frmDeckChooser managing", After<frmDeckChooser>(OnSpreads(&frmSpreads::cmdManager_Click))},
        {"frmDeckChooser installing", After<frmDeckChooser>(OfferDecks)},
        {"frmSpreadComments", After<frmSpreadComments>(design)},
        {"frmLocationAttributes", After<frmLocationAttributes>(FirstLocation(design))},
        {"frmSpreadInfo_LocationAttributes", After<frmSpreadInfo_LocationAttributes>(FirstLocation(info))},
        {"frmSaveSpread", After<frmSaveSpread>(design)},
        {"frmGetSpreadBackground", After<frmGetSpreadBackground>(design)},
        {"frmCreatePackage", After<frmCreatePackage>()},
        {"frmCreatePackageSummary", After<frmCreatePackageSummary>(Counted<frmCreatePackageSummary>(true))},
        {"frmInstallPackage", After<frmInstallPackage>()},
        {"frmPackageInfo", After<frmPackageInfo>()},
        {"frmPackageSummary", After<frmPackageSummary>(Counted<frmPackageSummary>(false))},
        {"frmSelectSpread", After<frmSelectSpread>()},
        {"frmNewReading", After<frmNewReading>(NewReading)},
        {"frmReadingCards", After<frmReadingCards>(NewReading)},
        {"frmNewReading dealing", After<frmNewReading>(Dealing)},
        {"frmReadingInterpretLocation", After<frmReadingInterpretLocation>(Interpreting(Dealing))},
        {"frmReadingNotes", After<frmReadingNotes>(NewReading)},
        {"frmSaveReading", After<frmSaveReading>(NewReading)},
        {"frmOpenReading", After<frmOpenReading>()},
        {"frmSelectSpreadforDiary", After<frmSelectSpreadforDiary>()},
        {"frmNewDiary", After<frmNewDiary>(NewDiary)},
        {"frmDiaryCards", DiaryCards},
        {"frmNewDiary keeping", After<frmNewDiary>(Keeping)},
        {"frmDiaryInterpretLocation", After<frmDiaryInterpretLocation>([] {
             Keeping();
             Get<frmNewDiary>().cmdInterpret->click();
         })},
        {"frmDiaryNotes", After<frmDiaryNotes>(NewDiary)},
        {"frmSaveDiary", After<frmSaveDiary>(NewDiary)},
        {"frmOpenDiary", After<frmOpenDiary>()},
        {"frmJournal", After<frmJournal>()},
    };
}

// Takes down every screen but the frame, asking nothing, so that the next
// row starts from the main screen's state.
inline void CloseEvery() {
    for (QWidget* w : QApplication::allWidgets())
        if (auto* form = qobject_cast<Form*>(w); form && !qobject_cast<MDIMainForm*>(form)) form->deleteLater();
    Settle();
}

}  // namespace Screens
