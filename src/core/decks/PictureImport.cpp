#include "core/decks/PictureImport.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

#include "core/decks/CardStore.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"

namespace {

// What an imported picture's working files are called in Temp/ until Commit:
// no card name takes these stems, and the card editor's working stems differ.
const QString UprightWorkStem = QStringLiteral("ImpUp");
const QString ReversedWorkStem = QStringLiteral("ImpRev");

// A run of digits at i, without its leading zeros; i moves past the run.
QStringView DigitRun(const QString& s, qsizetype& i) {
    const qsizetype start = i;
    while (i < s.size() && s[i].isDigit()) ++i;
    QStringView run(s.constData() + start, i - start);
    while (run.size() > 1 && run.front() == QLatin1Char('0')) run = run.sliced(1);
    return run;
}

// The format a picture's bytes are in ("jpeg", "png", ...), whatever its name.
QByteArray FormatOf(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.canRead() ? reader.format() : QByteArray();
}

bool DeckHolds(const QByteArray& format) { return format == "jpeg" || format == "bmp" || format == "gif"; }

QString ExtensionFor(const QByteArray& format) {
    return format == "jpeg" ? QStringLiteral(".jpg") : QLatin1Char('.') + QString::fromLatin1(format);
}

// A copied picture keeps its own extension when that names its format, as a
// picked file does in the card editor; another one ("x.jpeg") takes the
// format's usual one, so that no card name is cut short.
QString KeptExtension(const QString& source, const QByteArray& format) {
    const QString own = source.right(4);
    if (own.compare(ExtensionFor(format), Qt::CaseInsensitive) == 0) return own;
    if (format == "jpeg" && own.compare(QStringLiteral(".jpe"), Qt::CaseInsensitive) == 0) return own;
    return ExtensionFor(format);
}

}  // namespace

bool NaturalLess(const QString& a, const QString& b) {
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (a[i].isDigit() && b[j].isDigit()) {
            const QStringView x = DigitRun(a, i), y = DigitRun(b, j);
            if (x.size() != y.size()) return x.size() < y.size();
            if (const int c = x.compare(y); c != 0) return c < 0;
            continue;
        }
        const QChar x = a[i].toCaseFolded(), y = b[j].toCaseFolded();
        if (x != y) return x < y;
        ++i;
        ++j;
    }
    if ((i < a.size()) != (j < b.size())) return j < b.size();
    // Names that count alike ("01", "1"; "A", "a") still sort one way.
    return a < b;
}

QString TitleFromFileName(const QString& fileName) {
    static const QRegularExpression separators(QStringLiteral("[_\\-.\\s]+"));
    static const QRegularExpression leadingNumber(QStringLiteral("^\\d+ "));
    QString title = QFileInfo(fileName).completeBaseName().replace(separators, QStringLiteral(" ")).trimmed();
    title.remove(leadingNumber);
    QStringList words = title.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString& word : words) word[0] = word[0].toUpper();
    return words.join(QLatin1Char(' ')).left(50);
}

QString UprightPartnerOf(const QString& fileName, const QStringList& names) {
    const QString base = QFileInfo(fileName).completeBaseName();
    for (const QString& suffix : {QStringLiteral("-reversed"), QStringLiteral("_r"), QStringLiteral(" reversed")}) {
        if (!base.endsWith(suffix, Qt::CaseInsensitive) || base.size() == suffix.size()) continue;
        const QString upright = base.chopped(suffix.size());
        for (const QString& name : names)
            if (name != fileName && QFileInfo(name).completeBaseName().compare(upright, Qt::CaseInsensitive) == 0)
                return name;
    }
    return {};
}

FolderPictures ListFolderPictures(const QString& folder, int cardType) {
    QStringList names = QDir(folder).entryList(QDir::Files, QDir::NoSort);
    std::sort(names.begin(), names.end(), NaturalLess);
    FolderPictures found;
    QStringList pictures;
    for (const QString& name : names) {
        if (FormatOf(QDir(folder).filePath(name)).isEmpty()) found.NotPictures.append(name);
        else pictures.append(name);
    }
    QHash<QString, QString> reversedOf;
    for (const QString& name : pictures) {
        const QString upright = UprightPartnerOf(name, pictures);
        if (!upright.isEmpty() && !reversedOf.contains(upright)) reversedOf.insert(upright, name);
    }
    const QList<QString> reversedFiles = reversedOf.values();
    for (const QString& name : pictures) {
        if (reversedFiles.contains(name)) continue;
        found.Cards.append({name, reversedOf.value(name), TitleFromFileName(name), cardType, true});
    }
    return found;
}

QImage PictureThumbnail(const QString& path, int side) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    // Large pictures are scaled while they are read, which JPEG does cheaply.
    if (size.isValid()) reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio));
    return reader.read();
}

QString WorkOnPicture(const QString& source, const QString& folder, const QString& stem, bool turn) {
    const QByteArray format = FormatOf(source);
    if (format.isEmpty()) return {};
    if (DeckHolds(format) && !turn) {
        const QString name = stem + KeptExtension(source, format);
        try {
            FileCopyUnsynced(source, WithSlash(folder) + name);
        } catch (const RuntimeError&) {
            return {};
        }
        return name;
    }
    QImage image(source, format.constData());
    if (image.isNull()) return {};
    if (turn) image = image.mirrored(true, true);
    // A turned bitmap stays a bitmap; everything else becomes JPEG, which
    // has no transparency: clear parts show as white, as on a printed card.
    const QByteArray target = turn && format == "bmp" ? format : QByteArray("jpeg");
    if (target == "jpeg" && image.hasAlphaChannel()) {
        QImage opaque(image.size(), QImage::Format_RGB32);
        opaque.fill(Qt::white);
        QPainter(&opaque).drawImage(0, 0, image);
        image = opaque;
    }
    const QString name = stem + ExtensionFor(target);
    QImageWriter writer(WithSlash(folder) + name, target);
    writer.setQuality(90);
    return writer.write(image) ? name : QString();
}

QList<ProposedCard> CardsWithinLimit(const QList<ProposedCard>& cards, QStringList& pastLimit) {
    QList<ProposedCard> within;
    for (const ProposedCard& card : cards) {
        if (!card.Included) continue;
        if (CurrentDeck.CardCount + within.size() < MaxDeckCards) within.append(card);
        else pastLimit.append(card.Title);
    }
    return within;
}

int FirstTitleProblem(const QList<ProposedCard>& cards, QString& message) {
    QStringList earlier;
    for (int i = 0; i < cards.size(); ++i) {
        if (!cards[i].Included) continue;
        message = NewCardTitleProblem(cards[i].Title.left(50), earlier);
        if (!message.isEmpty()) return i;
        earlier.append(cards[i].Title.left(50));
    }
    return -1;
}

PictureImport::PictureImport(const QString& folder, const QList<ProposedCard>& cards, ReversedSide reversed)
    : folder_(folder), cards_(cards), reversed_(reversed), worked_(static_cast<std::size_t>(cards.size())) {
    // A deck without reversed cards shows the default picture on that side.
    if (!CurrentDeck.IncludesReversed) reversed_ = ReversedSide::None;
}

PictureImport::~PictureImport() { Cancel(); }

void PictureImport::Start() {
    for (int i = 0; i < cards_.size(); ++i) pool_.start([this, i] { WorkOn(i); });
}

void PictureImport::WaitForDone() { pool_.waitForDone(); }

void PictureImport::WorkOn(int index) {
    if (cancelled_) return;
    const ProposedCard& card = cards_[index];
    Worked& result = worked_[static_cast<std::size_t>(index)];
    const QString number = QString::number(index + 1);
    const QString source = QDir(folder_).filePath(card.File);
    result.Upright = WorkOnPicture(source, TempDir, UprightWorkStem + number, false);
    if (reversed_ == ReversedSide::Turned)
        result.Reversed = WorkOnPicture(source, TempDir, ReversedWorkStem + number, true);
    else if (reversed_ == ReversedSide::OwnFile && !card.ReversedFile.isEmpty())
        result.Reversed = WorkOnPicture(QDir(folder_).filePath(card.ReversedFile), TempDir,
                                        ReversedWorkStem + number, false);
    const bool reversedWanted =
        reversed_ == ReversedSide::Turned || (reversed_ == ReversedSide::OwnFile && !card.ReversedFile.isEmpty());
    result.Failed = result.Upright.isEmpty() || (reversedWanted && result.Reversed.isEmpty());
    const int done = ++done_;
    emit Progress(done, static_cast<int>(cards_.size()));
    if (done == cards_.size()) emit Done();
}

void PictureImport::RemoveWorkFiles() {
    for (const QString& stem : {UprightWorkStem, ReversedWorkStem}) KillIgnoringErrors(TempDir + stem + QLatin1Char('*'));
}

void PictureImport::Cancel() {
    cancelled_ = true;
    pool_.clear();
    pool_.waitForDone();
    RemoveWorkFiles();
}

QStringList PictureImport::Commit() {
    WaitForDone();
    QStringList unreadable;
    for (std::size_t i = 0; i < worked_.size(); ++i) {
        const ProposedCard& proposed = cards_[static_cast<int>(i)];
        const Worked& result = worked_[i];
        if (result.Failed) {
            unreadable.append(proposed.File);
            continue;
        }
        CardRecord card;
        ResetCard(card);
        card.CardTitle = proposed.Title;
        card.CardType = static_cast<Integer>(proposed.CardType);
        card.CardPicture[0] = PlaceWorkingPicture(0, result.Upright);
        if (!result.Reversed.isEmpty()) card.CardPicture[1] = PlaceWorkingPicture(1, result.Reversed);
        AppendDeckCard(card);
    }
    cancelled_ = true;
    RemoveWorkFiles();
    return unreadable;
}
