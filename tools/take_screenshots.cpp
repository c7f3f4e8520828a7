// Takes the pictures of the manual (help/images): it lays out a program folder
// with two decks and two spreads, starts the program on it and walks through
// its screens as a user would, grabbing the frame at each step. Run it under
// an X server (tools/screenshots.sh starts one) or with QT_QPA_PLATFORM=offscreen.
//
//   take_screenshots <empty program folder> <folder for the pictures>
//
// Message boxes answer from a queue and modal screens are worked from a timer
// that fires inside their own wait, so nothing ever stops for a user.
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionTitleBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <QTimer>
#include <QtMath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/platform/Picture.h"
#include "core/platform/Rnd.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/decks/frmAddCard.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/decks/frmImportPictures.h"
#include "screens/diary/frmDiaryCards.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/diary/frmSelectSpreadforDiary.h"
#include "screens/journal/frmJournal.h"
#include "screens/packages/PackageSummary.h"
#include "screens/packages/frmCreatePackage.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/Application.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/FileLists.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/readings/frmNewReading.h"
#include "screens/readings/frmReadingInterpretLocation.h"
#include "screens/readings/frmSelectSpread.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmHelpViewer.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmLocationAttributes.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/widgets/Emblems.h"

namespace {

QString gOutDir;
// "-de" and the like when the pictures show the program in a translation.
QString gLanguageSuffix;
int gFailures = 0;

// ---------------------------------------------------------------------------
// The sample designs.

struct SampleCard {
    const char* Title;
    const char* Upright;   // keywords of the upright side
    const char* Reversed;  // keywords of the reversed side
};

const SampleCard MajorArcana[] = {
    {"The Fool", "beginnings, trust, a leap into the open", "hesitation, carelessness, a risk not weighed"},
    {"The Magician", "skill, will, the tools at hand", "scattered effort, tricks, talent left idle"},
    {"The High Priestess", "intuition, the hidden, quiet knowing", "secrets kept from oneself, noise"},
    {"The Empress", "abundance, care, growth", "dependence, neglect of oneself"},
    {"The Emperor", "order, structure, authority", "rigidity, control for its own sake"},
    {"The Hierophant", "tradition, teaching, belonging", "rules questioned, a path of one's own"},
    {"The Lovers", "a choice of the heart, union", "imbalance, a choice put off"},
    {"The Chariot", "drive, victory, direction", "lost direction, forces pulling apart"},
    {"Strength", "patience, gentle courage", "self-doubt, force instead of patience"},
    {"The Hermit", "solitude, search, inner light", "isolation, withdrawal"},
    {"Wheel of Fortune", "turning point, cycles, chance", "resistance to change, a bad turn"},
    {"Justice", "fairness, truth, cause and effect", "bias, a debt unpaid"},
    {"The Hanged Man", "pause, surrender, a new view", "stalling, a sacrifice for nothing"},
    {"Death", "endings, transformation, release", "clinging, fear of change"},
    {"Temperance", "balance, moderation, healing", "excess, haste"},
    {"The Devil", "ties, temptation, material bonds", "release, breaking free"},
    {"The Tower", "sudden change, revelation", "disaster narrowly avoided, change delayed"},
    {"The Star", "hope, renewal, guidance", "discouragement, lost faith"},
    {"The Moon", "dreams, illusion, the unconscious", "confusion lifting, fears faced"},
    {"The Sun", "joy, success, vitality", "a cloud passing, delayed success"},
    {"Judgement", "awakening, calling, reckoning", "self-blame, a call not heard"},
    {"The World", "completion, wholeness, arrival", "loose ends, a journey not finished"},
};

const SampleCard MinorArcana[] = {
    {"Ace of Cups", "new feelings, love offered", "feelings held back"},
    {"Ace of Wands", "inspiration, a spark", "delays, a spark that fades"},
    {"Ace of Swords", "clarity, a breakthrough", "confusion, a harsh word"},
    {"Ace of Pentacles", "a new opportunity, prosperity", "a chance missed, poor planning"},
};

const char* const Numerals[] = {"0",  "I",   "II",   "III", "IV", "V",   "VI",   "VII",   "VIII", "IX", "X",
                                "XI", "XII", "XIII", "XIV", "XV", "XVI", "XVII", "XVIII", "XIX",  "XX", "XXI"};

// The face of a sample card: a coloured field in a golden border, the
// numeral above, a sign in the middle and the title below.
QImage CardFace(const QString& title, const QString& numeral, int index, int hueBase) {
    const int w = 180, h = 300;
    QImage image(w, h, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const int hue = (hueBase + index * 29) % 360;
    QLinearGradient field(0, 0, 0, h);
    field.setColorAt(0.0, QColor::fromHsv(hue, 120, 120));
    field.setColorAt(1.0, QColor::fromHsv((hue + 40) % 360, 180, 50));
    p.fillRect(image.rect(), QColor(246, 238, 214));
    p.fillRect(QRect(10, 10, w - 20, h - 20), field);
    const QColor gold(222, 184, 92);
    p.setPen(QPen(gold, 3));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRect(14, 14, w - 28, h - 28));

    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPixelSize(20);
    font.setBold(true);
    p.setFont(font);
    p.setPen(QColor(250, 244, 225));
    p.drawText(QRect(14, 22, w - 28, 30), Qt::AlignCenter, numeral);

    const QPointF centre(w / 2.0, h / 2.0);
    p.setPen(Qt::NoPen);
    // The star, the sun and the moon carry their own sign; the others take
    // one in turn.
    int sign = index % 4;
    if (title.contains(QStringLiteral("Star"))) sign = 0;
    else if (title.contains(QStringLiteral("Sun"))) sign = 1;
    else if (title.contains(QStringLiteral("Moon"))) sign = 2;
    switch (sign) {
    case 0:  // a star
        p.setBrush(gold);
        p.drawPolygon(Star(centre, 52, 22, 8));
        break;
    case 1: {  // a sun
        p.setBrush(QColor(250, 210, 90));
        p.drawEllipse(centre, 30, 30);
        p.setPen(QPen(QColor(250, 210, 90), 4));
        for (int i = 0; i < 12; ++i) {
            const double a = i * M_PI / 6;
            p.drawLine(centre + QPointF(40 * std::cos(a), 40 * std::sin(a)),
                       centre + QPointF(56 * std::cos(a), 56 * std::sin(a)));
        }
        break;
    }
    case 2: {  // a crescent moon
        QPainterPath moon;
        moon.addEllipse(centre, 44, 44);
        QPainterPath bite;
        bite.addEllipse(centre + QPointF(20, -10), 40, 40);
        p.setBrush(QColor(235, 235, 250));
        p.drawPath(moon.subtracted(bite));
        break;
    }
    default:  // an eye of rings
        for (int r = 50; r > 0; r -= 12) {
            p.setBrush(r % 24 == 2 ? gold : QColor::fromHsv((hue + 180) % 360, 90, 230));
            p.drawEllipse(centre, r, r * 0.7);
        }
        break;
    }

    font.setPixelSize(15);
    p.setFont(font);
    p.setPen(QColor(250, 244, 225));
    p.drawText(QRect(14, h - 64, w - 28, 40), Qt::AlignCenter | Qt::TextWordWrap, title);
    return image;
}

QString Sentence(const QString& title, const char* keywords, bool upright) {
    return upright ? QStringLiteral("%1 speaks of %2. Look at where this energy is already at work in the "
                                    "question, and where it asks to be welcomed.")
                         .arg(title, QString::fromUtf8(keywords))
                   : QStringLiteral("Reversed, %1 points to %2. Ask what holds the card's gift back, and what "
                                    "would set it free.")
                         .arg(title, QString::fromUtf8(keywords));
}

// A saved deck of the major arcana and, with minors, four aces; each card has
// a picture on both sides when the deck includes reversed cards.
Integer MakeSampleDeck(const QString& name, const QString& title, int hueBase, bool withReversed, bool withMinors) {
    DeckRecord deck;
    deck.IncludesReversed = Flag(withReversed);
    deck.DeckName = name;
    deck.DeckTitle = title;
    deck.DisplayCardTitles = True16;
    deck.DeckDesigner.DesignerName = QStringLiteral("Mara Quill");
    deck.DeckDesigner.DesignerEmail = QStringLiteral("mara.quill@example.org");
    deck.DeckDesigner.DesignerWebPage = QStringLiteral("www.example.org/tarot");
    deck.DeckDescription = QStringLiteral("A deck drawn in the colours of the night sky, with the twenty-two cards "
                                          "of the major arcana and the four aces.");
    deck.DeckComments = QStringLiteral("Drawn for the Cartomar manual.");
    deck.ModifiedOn = OleToday();
    deck.DeckRevision = 1;
    deck.DeckId = NextDeckId();
    deck.CardTypeName[0] = QStringLiteral("Major Arcana");
    deck.CardTypeName[1] = QStringLiteral("Minor Arcana");
    deck.CardTypeUsed = {True16, Flag(withMinors), False16, False16};

    QList<SampleCard> cards(std::begin(MajorArcana), std::end(MajorArcana));
    if (withMinors) cards.append(QList<SampleCard>(std::begin(MinorArcana), std::end(MinorArcana)));
    int upright = 0;
    int reversed = 0;
    for (int i = 0; i < cards.size(); ++i) {
        const QString cardTitle = QString::fromUtf8(cards[i].Title);
        const bool major = i < 22;
        CardRecord card;
        card.CardType = major ? 0 : 1;
        card.CardTitle = cardTitle;
        card.CardDescription[0] = Sentence(cardTitle, cards[i].Upright, true);
        card.CardDescription[1] = Sentence(cardTitle, cards[i].Reversed, false);
        card.CardKeywords[0] = QString::fromUtf8(cards[i].Upright);
        card.CardKeywords[1] = QString::fromUtf8(cards[i].Reversed);
        const QImage face =
            CardFace(cardTitle, major ? QString::fromLatin1(Numerals[i]) : QStringLiteral("Ace"), i, hueBase);
        upright = FreeCardNumber(0, {TheRun.Paths.CardsDir}, upright + 1);
        card.CardPicture[0] = CardUprightName(upright) + QStringLiteral(".bmp");
        SavePictureAsBmp(face, TheRun.Paths.CardsDir + card.CardPicture[0].Trimmed());
        if (withReversed) {
            reversed = FreeCardNumber(1, {TheRun.Paths.CardsDir}, reversed + 1);
            card.CardPicture[1] = CardReversedName(reversed) + QStringLiteral(".bmp");
            SavePictureAsBmp(face.mirrored(true, true), TheRun.Paths.CardsDir + card.CardPicture[1].Trimmed());
        } else {
            card.CardPicture[1] = DefaultPictureName;
        }
        card.CardDeckId = deck.DeckId;
        AppendRecord(TheRun.Paths.CardsPath, card);
    }
    deck.CardCount = static_cast<Integer>(cards.size());
    AppendRecord(TheRun.Paths.DecksPath, deck);
    return deck.DeckId;
}

struct SampleLocation {
    const char* Title;
    const char* Description;
    const char* Question;
    int Left, Top;  // twips on the spread page
};

void MakeSampleSpread(const QString& name, const QString& description, bool askIssue,
                      const QList<SampleLocation>& locations, const QList<Integer>& deckIds) {
    SpreadRecord spread;
    ResetSpread(spread);
    spread.SpreadName = name;
    spread.SpreadTitle = name;
    spread.SpreadDescription = description;
    spread.SpreadDesigner.DesignerName = QStringLiteral("Mara Quill");
    spread.SpreadDesigner.DesignerEmail = QStringLiteral("mara.quill@example.org");
    spread.ModifiedOn = OleToday();
    spread.AskQuestion = Flag(askIssue);
    spread.SpreadId = NextSpreadId();
    spread.SpreadRevision = 1;
    spread.LocationCount = static_cast<Integer>(locations.size());
    if (deckIds.isEmpty()) {
        spread.AllowedDeckCount = -1;
    } else {
        for (int i = 0; i < deckIds.size(); ++i) spread.AllowedDeckId[static_cast<std::size_t>(i)] = deckIds[i];
        spread.AllowedDeckCount = static_cast<Integer>(deckIds.size());
    }
    for (int i = 0; i < locations.size(); ++i) {
        LocationRecord location;
        ResetLocation(location);
        location.LocationTitle = QString::fromUtf8(locations[i].Title);
        location.LocationDescription = QString::fromUtf8(locations[i].Description);
        location.LocationQuestion[0] = QString::fromUtf8(locations[i].Question);
        location.LocationQuestion[1] = QStringLiteral("Which detail of the picture draws your eye first?");
        location.LocationSpreadId = spread.SpreadId;
        location.LocationNumber = static_cast<Integer>(i + 1);
        location.LocationLeft = static_cast<Integer>(locations[i].Left);
        location.LocationTop = static_cast<Integer>(locations[i].Top);
        AppendRecord(TheRun.Paths.LocationsPath, location);
    }
    AppendRecord(TheRun.Paths.SpreadsPath, spread);
}

void MakeSampleDesigns() {
    const Integer moonlit =
        MakeSampleDeck(QStringLiteral("Moonlit Tarot"), QStringLiteral("The Moonlit Tarot"), 230, true, true);
    const Integer pocket =
        MakeSampleDeck(QStringLiteral("Pocket Major Arcana"), QStringLiteral("Pocket Major Arcana"), 20, false, false);
    MakeSampleSpread(
        QStringLiteral("The Crossroads"),
        QStringLiteral("A spread for a moment of choice. The centre shows where you stand, the cross around it "
                       "what weighs on the choice, and the last card the advice for the way ahead."),
        true,
        {{"The Present", "Where you stand now, as the question finds you.",
          "What do you feel when you look at this card?", 3960, 2460},
         {"The Root", "What lies beneath the question: its cause or its old story.", "Where did this begin?", 3960,
          4560},
         {"The Past", "What is passing away and may be let go.", "What are you ready to leave behind?", 1320, 2460},
         {"The Crown", "The best that can come of the situation.", "What would you like to happen?", 3960, 360},
         {"The Near Future", "What comes next, whatever you choose.", "What can you prepare for?", 6600, 2460},
         {"The Advice", "The card's counsel for the way ahead.", "What is the first small step?", 7680, 4560}},
        {moonlit, pocket});
    MakeSampleSpread(
        QStringLiteral("Past, Present, Future"),
        QStringLiteral("Three cards in a row: the past on the left, the present in the middle, the future on the "
                       "right. A quick look at the course of any matter."),
        false,
        {{"The Past", "What led to the present situation.", "What have you learnt from it?", 1200, 2400},
         {"The Present", "The situation as it stands.", "What is asked of you now?", 3960, 2400},
         {"The Future", "Where things are heading if nothing changes.", "Is this where you want to go?", 6720, 2400}},
        {});
}

// ---------------------------------------------------------------------------
// Driving the screens.

void Settle(int ms = 150) {
    QElapsedTimer t;
    t.start();
    do {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    } while (t.elapsed() < ms);
}

// The widest picture the manual shows at its own size in the help viewer.
constexpr int WidestPicture = 880;

// A modal screen is a window of its own, above the frame: it is painted into
// the frame's picture at its place, under a title bar drawn by the style as
// the frame draws the title bars of its inner screens. Its place is that of
// its title bar, as a window manager puts a window where it is moved to.
void PaintModalScreen(QPainter& p, QWidget& screen, QPoint at, QRect& screens) {
    QStyleOptionTitleBar title;
    title.initFrom(&screen);
    title.text = screen.windowTitle();
    title.titleBarFlags = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
    title.subControls = QStyle::SC_TitleBarLabel | QStyle::SC_TitleBarCloseButton;
    title.state |= QStyle::State_Active;
    title.titleBarState = QStyle::State_Active;
    title.palette.setCurrentColorGroup(QPalette::Active);
    const int height = screen.style()->pixelMetric(QStyle::PM_TitleBarHeight, &title, &screen);
    title.rect = QRect(0, 0, screen.width(), height);
    at.ry() += height;
    p.save();
    p.translate(at.x(), at.y() - height);
    screen.style()->drawComplexControl(QStyle::CC_TitleBar, &title, &p, &screen);
    p.restore();
    p.drawImage(at, screen.grab().toImage());
    screens |= QRect(at.x(), at.y() - height, screen.width(), screen.height() + height);
}

// Saves the part of the frame that holds screens, with a small margin of the
// frame around them.
void Shot(const QString& name) {
    Settle();
    MDIMainForm& frame = Get<MDIMainForm>();
    QImage whole = frame.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QRect screens;
    for (const QMdiSubWindow* window : frame.Area()->subWindowList())
        if (window->isVisible()) screens |= QRect(frame.Area()->mapTo(&frame, window->pos()), window->size());
    {
        QPainter p(&whole);
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top == &frame || !top->isVisible() || !qobject_cast<Form*>(top)) continue;
            PaintModalScreen(p, *top, top->mapToGlobal(QPoint(0, 0)) - frame.mapToGlobal(QPoint(0, 0)), screens);
        }
    }
    const QRect crop = screens.isEmpty() ? frame.rect() : screens.adjusted(-8, -8, 8, 8) & frame.rect();
    QImage image = whole.copy(crop).convertToFormat(QImage::Format_RGB888);
    if (image.width() > WidestPicture) image = image.scaledToWidth(WidestPicture, Qt::SmoothTransformation);
    const QString path = gOutDir + QLatin1Char('/') + name + gLanguageSuffix + QStringLiteral(".png");
    if (image.isNull() || !image.save(path, "PNG", 9)) {
        std::fprintf(stderr, "could not save %s\n", qPrintable(path));
        ++gFailures;
        return;
    }
    std::printf("%s\n", qPrintable(path));
}

// Runs act on a screen as soon as it stands on the frame: for a modal
// screen, from inside its own wait. A screen that does not come ends the run.
template <class T>
void WhenShown(std::function<void(T&)> act) {
    auto* timer = new QTimer;
    auto started = std::make_shared<QElapsedTimer>();
    started->start();
    QObject::connect(timer, &QTimer::timeout, [timer, act, started] {
        if (IsLoaded<T>() && Get<T>().isVisible()) {
            timer->stop();
            timer->deleteLater();
            act(Get<T>());
        } else if (started->elapsed() > 20000) {
            std::fprintf(stderr, "a screen did not come: %s\n", T::staticMetaObject.className());
            std::fflush(nullptr);
            std::_Exit(1);
        }
    });
    timer->start(50);
}

int RowOf(const QListWidget* list, const QString& text) {
    for (int r = 0; r < list->count(); ++r)
        if (list->item(r)->text().trimmed() == text) return r;
    return -1;
}

void Check(bool ok, const char* what) {
    if (ok) return;
    std::fprintf(stderr, "not as expected: %s\n", what);
    ++gFailures;
}

void MainScreen() { Shot(QStringLiteral("main-screen")); }

void Reading() {
    WhenShown<frmSelectSpread>([](frmSelectSpread& select) {
        select.lstSpreads->setCurrentRow(RowOf(select.lstSpreads, QStringLiteral("The Crossroads")));
        select.lstSpreads_Click();
        select.lstDecks->setCurrentRow(RowOf(select.lstDecks, QStringLiteral("Moonlit Tarot")));
        select.lstDecks_Click();
        if (!select.chkUseReversed->isChecked()) select.chkUseReversed->click();
        Shot(QStringLiteral("reading-select"));
        select.cmdSelect->click();
    });
    Get<frmMainScreen>().lblButton_Click(1);
    frmNewReading& reading = Get<frmNewReading>();
    Check(reading.IntroductionShown(), "the reading opens on its introduction");
    reading.txtIssue->setText(QStringLiteral("Should I accept the offer to move abroad?"));
    reading.txtIssue->setFocus();
    Shot(QStringLiteral("reading-introduction"));

    reading.cmdContinue_Click();
    Settle();
    for (int i = 0; i < 4; ++i) reading.cmdNextCard_Click();
    Shot(QStringLiteral("reading-dealt"));

    reading.picLocation_Click(1);
    Shot(QStringLiteral("reading-interpretation"));
    if (IsLoaded<frmReadingInterpretLocation>()) Get<frmReadingInterpretLocation>().cmdClose_Click();
    reading.CloseReading();
    Settle();
}

void Diary() {
    WhenShown<frmSelectSpreadforDiary>([](frmSelectSpreadforDiary& select) {
        select.lstSpreads->setCurrentRow(RowOf(select.lstSpreads, QStringLiteral("Past, Present, Future")));
        select.lstSpreads_Click();
        select.lstDecks->setCurrentRow(RowOf(select.lstDecks, QStringLiteral("Moonlit Tarot")));
        select.lstDecks_Click();
        if (!select.chkUseReversed->isChecked()) select.chkUseReversed->click();
        select.cmdSelect->click();
    });
    Get<frmMainScreen>().lblButton_Click(3);
    frmNewDiary& diary = Get<frmNewDiary>();
    diary.cmdContinue_Click();
    Settle();

    struct Pick {
        int Location;
        const char* Card;
        bool Reversed;
        bool Photograph;
    };
    for (const Pick& pick :
         {Pick{1, "The Hermit", false, false}, Pick{2, "The Tower", true, false}, Pick{3, "The Star", false, true}}) {
        WhenShown<frmDiaryCards>([pick](frmDiaryCards& cards) {
            int row = -1;
            for (int r = 0; r < cards.lstCards->count(); ++r)
                if (cards.lstCards->item(r)->text().startsWith(QString::fromUtf8(pick.Card))) row = r;
            cards.lstCards->setCurrentRow(row);
            cards.lstCards_Click();
            if (cards.chkReserved->isChecked() != pick.Reversed) cards.chkReserved->click();
            if (pick.Photograph) Shot(QStringLiteral("diary-choose-card"));
            cards.cmdSelect->click();
        });
        diary.cmdCardTitle(pick.Location)->click();
    }
    Shot(QStringLiteral("diary-entry"));
    MsgBoxScript::Answer(vbNo);  // "Save changes ...?"
    diary.cmdClose_Click();
    Settle();
}

// A year of practice, written straight into the entry files: a reading or
// a diary entry every nine days, on the sample spreads and the Moonlit Tarot.
void JournalScreen() {
    const int deck = FindDeckRecordById(FindDeckIdByName(QStringLiteral("Moonlit Tarot")));
    DeckRecord tarot;
    GetRecord(TheRun.Paths.DecksPath, deck, tarot);
    SpreadRecord crossroads, threeCards;
    GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(QStringLiteral("The Crossroads")), crossroads);
    GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(QStringLiteral("Past, Present, Future")), threeCards);
    const QStringList issues = {QStringLiteral("The move abroad"), QStringLiteral("A new job?"),
                                QStringLiteral("My sister and I"), QStringLiteral("The house by the sea")};
    Randomize();
    for (int e = 0; e < 40; ++e) {
        const SpreadRecord& spread = e % 3 == 0 ? threeCards : crossroads;
        const auto fill = [&](auto& r) {
            r.Issue = issues[e % issues.size()];
            r.SavedOn = ToOleDate(QDate(2025, 1, 3).addDays(e * 9));
            r.ReadingDeckId = tarot.DeckId;
            r.ReadingDeckRevision = tarot.DeckRevision;
            r.ReadingSpreadId = spread.SpreadId;
            r.ReadingSpreadRevision = spread.SpreadRevision;
            for (int l = 0; l < spread.LocationCount; ++l) {
                r.DealtCard[static_cast<std::size_t>(l)] = static_cast<Integer>(1 + Rnd() * tarot.CardCount);
                r.DealtUpright[static_cast<std::size_t>(l)] = Rnd() < 0.7 ? True16 : False16;
            }
        };
        if (e % 2 == 0) {
            ReadingRecord r;
            ResetReading(r);
            r.ReadingName = issues[e % issues.size()] + QStringLiteral(" %1").arg(e / 4 + 1);
            r.DealtCount = spread.LocationCount;
            fill(r);
            AppendRecord(TheRun.Paths.ReadingsPath, r);
        } else {
            DiaryRecord d;
            ResetDiary(d);
            d.DiaryName = QStringLiteral("Table reading %1").arg(e / 2 + 1);
            fill(d);
            AppendRecord(TheRun.Paths.DiaryPath, d);
        }
    }
    Get<frmMainScreen>().lblButton_Click(frmMainScreen::JournalButton);
    frmJournal& journal = Get<frmJournal>();
    journal.txtWords->setText(QStringLiteral("move"));
    journal.Search();
    Shot(QStringLiteral("journal"));
    journal.txtWords->clear();
    journal.Search();
    journal.tabJournal->setCurrentIndex(1);
    Shot(QStringLiteral("journal-cards"));
    journal.tabJournal->setCurrentIndex(4);
    Shot(QStringLiteral("journal-months"));
    journal.cmdClose_Click();
    Settle();
}

void Decks() {
    Get<frmMainScreen>().lblButton_Click(5);
    frmDecks& decks = Get<frmDecks>();
    decks.SelectDeck(QStringLiteral("Moonlit Tarot"));
    decks.lstDecks_Click();
    Shot(QStringLiteral("decks-menu"));

    decks.cmdEdit_Click();
    Settle();
    frmDesignDeck& design = Get<frmDesignDeck>();
    design.lstCards->setCurrentRow(RowOf(design.lstCards, QStringLiteral("The Star")));
    Shot(QStringLiteral("deck-design"));

    // The import, on a folder of a few of the deck's own pictures and a note.
    const QString scans = QDir(TheRun.Paths.AppPath).absoluteFilePath(QStringLiteral("../Scans")) + QLatin1Char('/');
    QDir().mkpath(scans);
    const char* names[] = {"01 the_moon", "02 the-sun", "03 the_world", "10 ace of cups", "11 two of cups"};
    for (int i = 0; i < 5; ++i) {
        const QString picture = TheRun.CurrentDeck.DeckCards(i + 1).CardPicture[0].Trimmed();
        FileCopy(TheRun.Paths.CardsDir + picture, scans + QLatin1String(names[i]) + picture.right(4));
    }
    WriteWholeFile(scans + QStringLiteral("contents.txt"), "the cards of the deck");
    CommonDialogScript::Enable();
    CommonDialogScript::Answer(scans);
    WhenShown<frmImportPictures>([](frmImportPictures& screen) {
        Settle(600);
        screen.tblPictures->selectRow(3);
        Shot(QStringLiteral("deck-import"));
        screen.cmdCancel_Click();
    });
    design.cmdImportPictures_Click();
    Settle();

    design.cmdEditCard_Click();
    Settle();
    Shot(QStringLiteral("card-editor"));
    Get<frmAddCard>().cmdBack_Click();
    Settle();
    Get<frmDesignDeck>().cmdBack_Click();
    Settle();
    Get<frmDecks>().cmdClose_Click();
    Settle();
}

void Spreads() {
    Get<frmMainScreen>().lblButton_Click(6);
    frmSpreads& spreads = Get<frmSpreads>();
    spreads.SelectSpread(QStringLiteral("The Crossroads"));
    spreads.lstSpreads_Click();
    Shot(QStringLiteral("spreads-menu"));

    spreads.cmdEdit_Click();
    Settle();
    frmDesignSpread& design = Get<frmDesignSpread>();
    Shot(QStringLiteral("spread-details"));
    design.cmdSpread_Click();
    design.cmdGrid_Click();
    Shot(QStringLiteral("spread-canvas"));
    design.cmdCardAttributes(1)->click();
    Shot(QStringLiteral("location-attributes"));
    if (IsLoaded<frmLocationAttributes>()) Get<frmLocationAttributes>().Unload();
    if (design.SpreadDirty) MsgBoxScript::Answer(vbNo);  // "Save changes to the spread?"
    design.cmdBack_Click();
    Settle();

    frmSpreads& again = Get<frmSpreads>();
    again.SelectSpread(QStringLiteral("The Crossroads"));
    again.lstSpreads_Click();
    again.cmdManager_Click();
    Settle();
    Shot(QStringLiteral("spread-manage-decks"));
    Get<frmDeckChooser>().cmdClose_Click();
    Settle();
    if (IsLoaded<frmSpreads>()) Get<frmSpreads>().cmdClose_Click();
    Settle();
}

void Packages() {
    Get<frmMainScreen>().lblButton_Click(8);
    frmCreatePackage& create = Get<frmCreatePackage>();
    const int row = RowOf(create.lstAvailableSpreads, QStringLiteral("The Crossroads"));
    Check(row >= 0, "the spread is offered for packing");
    if (row >= 0) create.lstAvailableSpreads->item(row)->setCheckState(Qt::Checked);
    Shot(QStringLiteral("package-create"));
    WhenShown<frmCreatePackageSummary>([](frmCreatePackageSummary& summary) {
        Shot(QStringLiteral("package-created"));
        summary.cmdCancel_Click();
    });
    create.cmdCreate_Click();
    Settle();
    if (IsLoaded<frmCreatePackage>()) Get<frmCreatePackage>().cmdCancel_Click();
    Settle();

    Get<frmMainScreen>().lblButton_Click(7);
    frmInstallPackage& install = Get<frmInstallPackage>();
    Check(install.filSelection->ListCount() > 0, "the new package is listed for installing");
    install.filSelection->setListIndex(0);
    install.filSelection_Click();
    Shot(QStringLiteral("package-install"));
    WhenShown<frmPackageInfo>([](frmPackageInfo& info) {
        Shot(QStringLiteral("package-info"));
        info.cmdCancel_Click();
    });
    install.cmdInfo_Click();
    Settle();
    if (IsLoaded<frmInstallPackage>()) Get<frmInstallPackage>().cmdCancel_Click();
    Settle();
}

// The manual itself in the program's help viewer, when the manual is given.
void HelpViewer(const QString& manualFolder) {
    if (manualFolder.isEmpty()) return;
    QDir().mkpath(TheRun.Paths.AppPath + QStringLiteral("Help/images"));
    QFile::copy(manualFolder + QStringLiteral("/Cartomar.hlp"), TheRun.Paths.AppPath + QStringLiteral("Cartomar.hlp"));
    for (const QString& png : QDir(gOutDir).entryList({QStringLiteral("*.png")}))
        QFile::copy(gOutDir + QLatin1Char('/') + png, TheRun.Paths.AppPath + QStringLiteral("Help/images/") + png);
    Get<frmMainScreen>().lblButton_Click(9);
    if (IsLoaded<frmHelpViewer>()) Get<frmHelpViewer>().txtHelp->scrollToAnchor(QStringLiteral("mainscreen"));
    Shot(QStringLiteral("help-viewer"));
    if (IsLoaded<frmHelpViewer>()) Get<frmHelpViewer>().Unload();
}

}  // namespace

int main(int argc, char** argv) {
    // The manual is English, whatever the language of the desktop that
    // takes its pictures; "--language=de" takes the reading's pictures in a
    // translation instead, named reading-dealt-de.png and so on.
    QString language = QStringLiteral("en");
    if (argc > 1 && QByteArray(argv[argc - 1]).startsWith("--language=")) {
        language = QString::fromLocal8Bit(argv[argc - 1]).mid(11);
        gLanguageSuffix = QLatin1Char('-') + language;
        --argc;
    }
    CartomarApplication app(argc, argv, {language});
    if (argc < 3) {
        std::fprintf(stderr, "usage: take_screenshots <empty program folder> <folder for the pictures> [help folder] "
                             "[--language=xx]\n");
        return 2;
    }
    const QString programDir = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    gOutDir = QDir(QString::fromLocal8Bit(argv[2])).absolutePath();
    QDir().mkpath(programDir);
    QDir().mkpath(gOutDir);

    MsgBoxScript::Enable();
    MediaPlayerScript::Enable();
    SetRandomizeSeedForTests(1234);
    SetEndProcessHook([](int) {});

    // A fresh folder of the present format, then the designs straight into
    // its record files; the start-up of the frame then finds them ready.
    FormPaths(programDir);
    InitDatabase();
    WriteWholeFile(TheRun.Paths.LocationsPath, QByteArray());
    MakeSampleDesigns();

    MDIMainForm::SetProgramDirectory(programDir);
    Get<MDIMainForm>().ShowFrame();
    Settle(400);

    if (!gLanguageSuffix.isEmpty()) {
        Reading();
        std::fflush(nullptr);
        std::_Exit(gFailures == 0 ? 0 : 1);
    }
    MainScreen();
    Reading();
    Diary();
    JournalScreen();
    Decks();
    Spreads();
    Packages();
    HelpViewer(argc > 3 ? QString::fromLocal8Bit(argv[3]) : QString());

    for (const MsgBoxScript::Shown& box : MsgBoxScript::History())
        std::fprintf(stderr, "message on the way: %s\n", qPrintable(box.prompt));
    std::fflush(nullptr);
    // The screens stay loaded to the end; the process goes without tearing
    // them down one by one.
    std::_Exit(gFailures == 0 ? 0 : 1);
}
