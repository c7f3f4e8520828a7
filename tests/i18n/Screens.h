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
template <class T>
Steps On(void (T::*button)()) {
    return [button] {
        Get<T>().Show();
        (Get<T>().*button)();
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
template <class T = frmNewReading>
Steps Interpreting(const Steps& steps) {
    return [steps] {
        steps();
        Get<T>().cmdInterpret->click();
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

// T, which runs modally, opened by `open` after the steps: looked at inside
// its own run, then cancelled.
template <class T>
Opener Modal(const Steps& steps, const Steps& open) {
    return [steps, open](const Look& look) {
        steps();
        ModalScript script;
        script.On<T>([look](T& screen) {
            look(screen);
            screen.cmdCancel->click();
        });
        open();
    };
}

// A row for each of the screens T, named by its class, shown after the same
// steps.
template <class... T>
QList<Screen> Rows(const Steps& steps = [] {}) {
    return {Screen{T::staticMetaObject.className(), After<T>(steps)}...};
}

inline QList<Screen> Every() {
    const Steps edit = On(&frmDecks::cmdEdit_Click), view = On(&frmDecks::cmdInfo_Click);
    const Steps design = On(&frmSpreads::cmdEdit_Click), info = On(&frmSpreads::cmdInfo_Click);
    QList<Screen> every = {
        // The picture import over the deck designer, the sample's pictures
        // proposed; the card choice of the diary's first location.
        {"frmImportPictures",
         Modal<frmImportPictures>(edit, [] { Get<frmImportPictures>().ShowFolder(TheRun.Paths.CardsDir); })},
        {"frmDiaryCards", Modal<frmDiaryCards>(Keeping, [] { Get<frmNewDiary>().cmdCardTitle(1)->click(); })},
        {"frmDesignSpread details", After<frmDesignSpread>(design)},
        {"frmDesignSpread layout", After<frmDesignSpread>(Page(design, &frmDesignSpread::cmdSpread_Click))},
        {"frmDesignSpread decks", After<frmDesignSpread>(Page(design, &frmDesignSpread::cmdDecks_Click))},
        {"frmSpreadInfo details", After<frmSpreadInfo>(info)},
        {"frmSpreadInfo layout", After<frmSpreadInfo>(Page(info, &frmSpreadInfo::cmdSpread_Click))},
        {"frmSpreadInfo decks", After<frmSpreadInfo>(Page(info, &frmSpreadInfo::cmdDecks_Click))},
        {"frmDeckChooser managing", After<frmDeckChooser>(On(&frmSpreads::cmdManager_Click))},
        {"frmDeckChooser installing", After<frmDeckChooser>(OfferDecks)},
        {"frmCreatePackageSummary", After<frmCreatePackageSummary>(Counted<frmCreatePackageSummary>(true))},
        {"frmPackageSummary", After<frmPackageSummary>(Counted<frmPackageSummary>(false))},
        {"frmNewReading dealing", After<frmNewReading>(Dealing)},
        {"frmNewDiary keeping", After<frmNewDiary>(Keeping)},
        {"frmDiaryInterpretLocation", After<frmDiaryInterpretLocation>(Interpreting<frmNewDiary>(Keeping))},
    };
    return every << Rows<frmMainScreen, frmQuickHelp, frmDiaryHelp, frmHelpViewer, frmConvert, frmDesignExists,
                         frmGetPassword, frmSetPassword, frmDecks, frmBrowseDeck, frmSpreads, frmCreatePackage,
                         frmInstallPackage, frmPackageInfo, frmSelectSpread, frmOpenReading, frmSelectSpreadforDiary,
                         frmOpenDiary, frmJournal>()
                 << Rows<frmDesignDeck, frmDeckCardProperties, frmDeckComments, frmSaveDeck>(edit)
                 << Rows<frmDeckInfo, frmDeckCardPropertiesInfo, frmDeckCommentsInfo>(view)
                 << Rows<frmAddCard, frmGetImageFile, frmGetSoundFile>(FirstCard(edit))
                 << Rows<frmViewCard>(FirstCard(view))
                 << Rows<frmSpreadComments, frmSaveSpread, frmGetSpreadBackground>(design)
                 << Rows<frmLocationAttributes>(FirstLocation(design))
                 << Rows<frmSpreadInfo_LocationAttributes>(FirstLocation(info))
                 << Rows<frmNewReading, frmReadingCards, frmReadingNotes, frmSaveReading>(NewReading)
                 << Rows<frmNewDiary, frmDiaryNotes, frmSaveDiary>(NewDiary)
                 << Rows<frmReadingInterpretLocation>(Interpreting(Dealing));
}

// The rows of a test over every screen, one for each, by its name.
inline void AddRows() {
    QTest::addColumn<int>("row");
    const QList<Screen> screens = Every();
    for (int row = 0; row < screens.size(); ++row) QTest::newRow(screens[row].Name) << row;
}

// Takes down every screen but the frame, asking nothing, so that the next
// row starts from the main screen's state.
inline void CloseEvery() {
    for (QWidget* w : QApplication::allWidgets())
        if (auto* form = qobject_cast<Form*>(w); form && !qobject_cast<MDIMainForm*>(form)) form->deleteLater();
    Settle();
}

}  // namespace Screens
