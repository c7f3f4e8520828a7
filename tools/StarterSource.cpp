#include "StarterSource.h"

#include <QFile>

#include "core/platform/CodePage.h"
#include "core/spreads/LocationTitle.h"

namespace {

struct Entry {
    QString Key, Value;
    int Line = 0;
};

// The "Key: value" lines of a source file, with continuation lines joined on
// and comments and blank lines left out.
std::vector<Entry> ReadEntries(const QString& path, QStringList& problems) {
    std::vector<Entry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems << path + QStringLiteral(": cannot be read");
        return entries;
    }
    const QStringList lines = FromAnsi(file.readAll()).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        QString line = lines[i];
        if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
        const QString where = QStringLiteral("%1:%2: ").arg(path).arg(i + 1);
        if (line.front().isSpace()) {
            if (entries.empty()) problems << where + QStringLiteral("a continuation with nothing above it");
            else entries.back().Value += QLatin1Char(' ') + line.trimmed();
            continue;
        }
        const int colon = line.indexOf(QLatin1Char(':'));
        if (colon < 1) {
            problems << where + QStringLiteral("expected \"Key: value\"");
            continue;
        }
        entries.push_back({line.left(colon).trimmed(), line.mid(colon + 1).trimmed(), i + 1});
    }
    return entries;
}

bool ReadFlag(const Entry& entry, const QString& path, QStringList& problems) {
    const QString value = entry.Value.toLower();
    if (value != QLatin1String("yes") && value != QLatin1String("no"))
        problems << QStringLiteral("%1:%2: %3 must be yes or no").arg(path).arg(entry.Line).arg(entry.Key);
    return value == QLatin1String("yes");
}

void Unknown(const Entry& entry, const QString& path, QStringList& problems) {
    problems << QStringLiteral("%1:%2: unknown or misplaced key \"%3\"").arg(path).arg(entry.Line).arg(entry.Key);
}

void ReadDeck(const QString& path, StarterDeck& deck, QStringList& problems) {
    for (const Entry& e : ReadEntries(path, problems)) {
        if (e.Key == QLatin1String("Deck")) deck.Name = e.Value;
        else if (e.Key == QLatin1String("Title")) deck.Title = e.Value;
        else if (e.Key == QLatin1String("Description")) deck.Description = e.Value;
        else if (e.Key == QLatin1String("Notes")) deck.Notes = e.Value;
        else if (e.Key == QLatin1String("Designer")) deck.Designer = e.Value;
        else if (e.Key == QLatin1String("Email")) deck.Email = e.Value;
        else if (e.Key == QLatin1String("WebPage")) deck.WebPage = e.Value;
        else if (e.Key == QLatin1String("CardType")) deck.CardTypes << e.Value;
        else if (e.Key == QLatin1String("IncludesReversed")) deck.IncludesReversed = ReadFlag(e, path, problems);
        else if (e.Key == QLatin1String("DisplayCardTitles")) deck.DisplayCardTitles = ReadFlag(e, path, problems);
        else Unknown(e, path, problems);
    }
}

void ReadCards(const QString& path, std::vector<StarterCard>& cards, QStringList& problems) {
    StarterCard* card = nullptr;
    for (const Entry& e : ReadEntries(path, problems)) {
        if (e.Key == QLatin1String("Card")) {
            cards.emplace_back();
            card = &cards.back();
            card->Title = e.Value;
            continue;
        }
        if (!card) {
            Unknown(e, path, problems);
            continue;
        }
        if (e.Key == QLatin1String("Type")) card->Type = e.Value;
        else if (e.Key == QLatin1String("Suit")) card->Suit = e.Value;
        else if (e.Key == QLatin1String("Number")) card->Number = e.Value;
        else if (e.Key == QLatin1String("Upright")) card->Upright = e.Value;
        else if (e.Key == QLatin1String("Reversed")) card->Reversed = e.Value;
        else if (e.Key == QLatin1String("UprightKeywords")) card->UprightKeywords = e.Value;
        else if (e.Key == QLatin1String("ReversedKeywords")) card->ReversedKeywords = e.Value;
        else Unknown(e, path, problems);
    }
}

// "left, top" in whole twips.
void ReadPosition(const Entry& e, const QString& path, StarterLocation& location, QStringList& problems) {
    const QStringList parts = e.Value.split(QLatin1Char(','));
    bool leftOk = false, topOk = false;
    if (parts.size() == 2) {
        location.Left = parts[0].trimmed().toInt(&leftOk);
        location.Top = parts[1].trimmed().toInt(&topOk);
    }
    if (!leftOk || !topOk)
        problems << QStringLiteral("%1:%2: Position must be \"left, top\" in twips").arg(path).arg(e.Line);
}

void ReadSpreads(const QString& path, std::vector<StarterSpread>& spreads, QStringList& problems) {
    StarterSpread* spread = nullptr;
    StarterLocation* location = nullptr;
    for (const Entry& e : ReadEntries(path, problems)) {
        if (e.Key == QLatin1String("Spread")) {
            spreads.emplace_back();
            spread = &spreads.back();
            spread->Name = e.Value;
            location = nullptr;
        } else if (e.Key == QLatin1String("Location") && spread) {
            spread->Locations.emplace_back();
            location = &spread->Locations.back();
            location->Title = e.Value;
        } else if (location) {
            if (e.Key == QLatin1String("Position")) ReadPosition(e, path, *location, problems);
            else if (e.Key == QLatin1String("Description")) location->Description = e.Value;
            else if (e.Key == QLatin1String("Question")) location->Questions << e.Value;
            else Unknown(e, path, problems);
        } else if (spread) {
            if (e.Key == QLatin1String("Title")) spread->Title = e.Value;
            else if (e.Key == QLatin1String("Description")) spread->Description = e.Value;
            else if (e.Key == QLatin1String("Notes")) spread->Notes = e.Value;
            else if (e.Key == QLatin1String("AskQuestion")) spread->AskQuestion = ReadFlag(e, path, problems);
            else Unknown(e, path, problems);
        } else {
            Unknown(e, path, problems);
        }
    }
}

// A text for a field of `width` bytes: present unless it may be blank, within
// the width once in the code page, and made only of characters it holds.
void CheckText(const QString& what, const QString& text, int width, QStringList& problems, bool mayBeBlank = false) {
    if (!mayBeBlank && text.trimmed().isEmpty()) problems << what + QStringLiteral(" is empty");
    if (!AnsiRepresentable(text)) problems << what + QStringLiteral(" holds characters outside Windows-1252");
    else if (ToAnsi(text).size() > width)
        problems
            << QStringLiteral("%1 is %2 bytes long, its field holds %3").arg(what).arg(ToAnsi(text).size()).arg(width);
}

void CheckDeck(const StarterDeck& deck, QStringList& problems) {
    CheckText(QStringLiteral("the deck's name"), deck.Name, 50, problems);
    CheckText(QStringLiteral("the deck's title"), deck.Title, 50, problems);
    CheckText(QStringLiteral("the deck's description"), deck.Description, 500, problems);
    CheckText(QStringLiteral("the deck's notes"), deck.Notes, 200, problems, true);
    CheckText(QStringLiteral("the deck's designer"), deck.Designer, 40, problems);
    CheckText(QStringLiteral("the deck's e-mail address"), deck.Email, 40, problems, true);
    CheckText(QStringLiteral("the deck's web page"), deck.WebPage, 50, problems, true);
    if (deck.CardTypes.isEmpty() || deck.CardTypes.size() > 4)
        problems << QStringLiteral("a deck has one to four card types");
    for (const QString& type : deck.CardTypes) CheckText(QStringLiteral("a card type name"), type, 20, problems);
    if (deck.Cards.empty() || deck.Cards.size() > 100) problems << QStringLiteral("a deck has 1 to 100 cards");
    for (std::size_t i = 0; i < deck.Cards.size(); ++i) {
        const StarterCard& card = deck.Cards[i];
        const QString what = QStringLiteral("card %1 (%2): ").arg(i + 1).arg(card.Title);
        CheckText(what + QStringLiteral("title"), card.Title, 50, problems);
        CheckText(what + QStringLiteral("upright description"), card.Upright, 1500, problems);
        CheckText(what + QStringLiteral("reversed description"), card.Reversed, 1500, problems);
        CheckText(what + QStringLiteral("upright keywords"), card.UprightKeywords, 1000, problems);
        CheckText(what + QStringLiteral("reversed keywords"), card.ReversedKeywords, 1000, problems);
        CheckText(what + QStringLiteral("number"), card.Number, 8, problems);
        if (!deck.CardTypes.contains(card.Type))
            problems << what + QStringLiteral("type \"%1\" is not one of the deck's").arg(card.Type);
        if (!StarterSuits().contains(card.Suit))
            problems << what + QStringLiteral("suit \"%1\" is unknown").arg(card.Suit);
    }
}

bool Overlap(const StarterLocation& a, const StarterLocation& b) {
    return a.Left < b.Left + LocationWidth && b.Left < a.Left + LocationWidth && a.Top < b.Top + LocationHeight &&
           b.Top < a.Top + LocationHeight;
}

void CheckSpread(const StarterSpread& spread, QStringList& problems) {
    const QString what = QStringLiteral("spread \"%1\": ").arg(spread.Name);
    CheckText(what + QStringLiteral("name"), spread.Name, 50, problems);
    CheckText(what + QStringLiteral("title"), spread.Title, 50, problems);
    CheckText(what + QStringLiteral("description"), spread.Description, 1500, problems);
    CheckText(what + QStringLiteral("notes"), spread.Notes, 650, problems, true);
    if (spread.Locations.empty() || spread.Locations.size() > 32)
        problems << what + QStringLiteral("a spread has 1 to 32 locations");
    for (std::size_t i = 0; i < spread.Locations.size(); ++i) {
        const StarterLocation& location = spread.Locations[i];
        const QString at = what + QStringLiteral("location %1: ").arg(i + 1);
        CheckText(at + QStringLiteral("title"), location.Title, 50, problems);
        // The reading screen shows the title behind the location's number,
        // and a location takes another number when one before it goes.
        for (std::size_t number = 1; number <= spread.Locations.size(); ++number) {
            if (FitsLocationTitle(NumberedLocationTitle(static_cast<int>(number), location.Title))) continue;
            problems << at + QStringLiteral("title \"%1\" does not show whole as location %2 on the reading screen")
                                 .arg(location.Title)
                                 .arg(number);
            break;
        }
        CheckText(at + QStringLiteral("description"), location.Description, 650, problems);
        if (location.Questions.isEmpty() || location.Questions.size() > 3)
            problems << at + QStringLiteral("a location asks one to three questions");
        for (const QString& question : location.Questions)
            CheckText(at + QStringLiteral("question"), question, 125, problems);
        if (location.Left < 0 || location.Left > LocationMaxLeft || location.Top < 0 || location.Top > LocationMaxTop)
            problems << at + QStringLiteral("lies off the canvas");
        for (std::size_t j = 0; j < i; ++j)
            if (Overlap(location, spread.Locations[j]))
                problems << at + QStringLiteral("lies on top of location %1").arg(j + 1);
    }
}

}  // namespace

const QStringList& StarterSuits() {
    static const QStringList suits{QStringLiteral("Major"), QStringLiteral("Wands"), QStringLiteral("Cups"),
                                   QStringLiteral("Swords"), QStringLiteral("Pentacles")};
    return suits;
}

QStringList StarterCardFiles() {
    QStringList files;
    for (const QString& suit : StarterSuits()) files << suit.toLower() + QStringLiteral(".txt");
    return files;
}

StarterDesigns ReadStarterDesigns(const QString& sourceFolder, QStringList& problems) {
    const QString folder = sourceFolder.endsWith(QLatin1Char('/')) ? sourceFolder : sourceFolder + QLatin1Char('/');
    StarterDesigns designs;
    ReadDeck(folder + QStringLiteral("deck.txt"), designs.Deck, problems);
    for (const QString& file : StarterCardFiles()) ReadCards(folder + file, designs.Deck.Cards, problems);
    ReadSpreads(folder + QStringLiteral("spreads.txt"), designs.Spreads, problems);
    return designs;
}

QStringList CheckStarterDesigns(const StarterDesigns& designs) {
    QStringList problems;
    CheckDeck(designs.Deck, problems);
    if (designs.Spreads.empty()) problems << QStringLiteral("there are no spreads");
    QStringList names;
    for (const StarterSpread& spread : designs.Spreads) {
        CheckSpread(spread, problems);
        if (names.contains(spread.Name.trimmed()))
            problems << QStringLiteral("two spreads are named \"%1\"").arg(spread.Name);
        names << spread.Name.trimmed();
    }
    return problems;
}
