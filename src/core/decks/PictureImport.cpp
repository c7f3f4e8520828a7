#include "core/decks/PictureImport.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

#include "core/decks/CardStore.h"
#include "core/platform/CodePage.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/WriteFaults.h"
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

// A converted or turned picture into a working file: encoded in memory, then
// written beside its name and renamed into place through the program's write
// steps, so that no one finds it half written and a fault test can fail it.
// Temp/ is emptied at every start, so nothing waits for the disk.
bool WriteWorkingPicture(const QImage& image, const QByteArray& format, const QString& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(90);
    if (!writer.write(image)) return false;
    const QString part = path + QStringLiteral(".part");
    bool written = false;
    {
        QFile out(part);
        written = out.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) &&
                  WriteStep(out, bytes.constData(), bytes.size()) == bytes.size();
    }
    if (written && RenameStep(part, path)) return true;
    QFile::remove(part);
    return false;
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
    // As the record will hold it, so that the list shows what is saved and
    // two names the code page cannot hold meet as the same title at OK.
    return FromAnsi(ToAnsi(words.join(QLatin1Char(' ')).left(50)));
}

QString UprightPartnerOf(const QString& fileName, const QHash<QString, QString>& uprightByName) {
    const QString base = QFileInfo(fileName).completeBaseName();
    for (const QString& suffix : {QStringLiteral("-reversed"), QStringLiteral("_r"), QStringLiteral(" reversed")}) {
        if (!base.endsWith(suffix, Qt::CaseInsensitive) || base.size() == suffix.size()) continue;
        const QString upright = uprightByName.value(base.chopped(suffix.size()).toCaseFolded());
        if (!upright.isEmpty()) return upright;
    }
    return {};
}

FolderPictures ListFolderPictures(const QString& folder, int cardType) {
    QStringList names = QDir(folder).entryList(QDir::Files, QDir::NoSort);
    std::sort(names.begin(), names.end(), NaturalLess);
    FolderPictures found;
    QStringList pictures;
    // Looked up by name rather than searched, so that a folder of thousands
    // of files is sorted out at once.
    QHash<QString, QString> byName;
    for (const QString& name : names) {
        if (FormatOf(QDir(folder).filePath(name)).isEmpty()) {
            found.NotPictures.append(name);
            continue;
        }
        pictures.append(name);
        const QString key = QFileInfo(name).completeBaseName().toCaseFolded();
        if (!byName.contains(key)) byName.insert(key, name);
    }
    QHash<QString, QString> reversedOf;  // upright -> its reversed file
    QSet<QString> reversedFiles;
    for (const QString& name : pictures) {
        const QString upright = UprightPartnerOf(name, byName);
        if (upright.isEmpty() || reversedOf.contains(upright)) continue;
        reversedOf.insert(upright, name);
        reversedFiles.insert(name);
    }
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
    return WriteWorkingPicture(image, target, WithSlash(folder) + name) ? name : QString();
}

QList<ProposedCard> CardsWithinLimit(const QList<ProposedCard>& cards, QStringList& pastLimit) {
    QList<ProposedCard> within;
    for (const ProposedCard& card : cards) {
        if (!card.Included) continue;
        if (TheRun.CurrentDeck.CardCount + within.size() < MaxDeckCards) within.append(card);
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

std::mutex& HandoverLock() {
    static std::mutex lock;
    return lock;
}

QString NamesForMessage(const QStringList& names, int shown) {
    if (names.size() <= shown) return names.join(QStringLiteral(", "));
    const int more = static_cast<int>(names.size()) - shown;
    return QCoreApplication::translate("PictureImport", "%1 and %n more", "", more)
        .arg(names.first(shown).join(QStringLiteral(", ")));
}

PictureImport::PictureImport(const QString& folder, const QList<ProposedCard>& cards, ReversedSide reversed)
    : tempDir_(TheRun.Paths.TempDir), cards_(cards), worked_(static_cast<std::size_t>(cards.size())) {
    handedOver_.Results.resize(worked_.size());
    // A deck without reversed cards shows the default picture on that side
    // and saves only the upright one. In a deck with reversed cards every
    // card gets a reversed file of its own, as the card editor gives it: one
    // of the default picture when there is no other, since the deck's save
    // gives each side its own name in Cards/.
    const bool reversedSides = TheRun.CurrentDeck.IncludesReversed != 0;
    const QString defaultPicture = NativePath(TheRun.Paths.DefaultPicturePath);
    const QDir from(folder);
    for (int i = 0; i < cards.size(); ++i) {
        Job job;
        job.Upright = from.filePath(cards[i].File);
        job.Folder = tempDir_;
        job.Number = QString::number(i + 1);
        if (reversedSides && reversed == ReversedSide::Turned) job.Turn = true;
        else if (reversedSides && reversed == ReversedSide::OwnFile && !cards[i].ReversedFile.isEmpty())
            job.Reversed = from.filePath(cards[i].ReversedFile);
        else if (reversedSides) job.Reversed = defaultPicture;
        jobs_.push_back(job);
    }
}

PictureImport::~PictureImport() { Cancel(); }

void PictureImport::Start() {
    for (std::size_t i = 0; i < jobs_.size(); ++i)
        RunForOwner<Worked>(
            pool_, [job = jobs_[i]] { return WorkOn(job); }, static_cast<int>(i), handedOver_, this, "Take");
}

PictureImport::Worked PictureImport::WorkOn(const Job& job) {
    Worked result;
    result.Upright = WorkOnPicture(job.Upright, job.Folder, UprightWorkStem + job.Number, false);
    if (result.Upright.isEmpty()) {
        result.Unreadable = job.Upright;
        return result;
    }
    if (job.Turn || !job.Reversed.isEmpty()) {
        const QString source = job.Turn ? job.Upright : job.Reversed;
        result.Reversed = WorkOnPicture(source, job.Folder, ReversedWorkStem + job.Number, job.Turn);
        if (result.Reversed.isEmpty()) result.Unreadable = source;
    }
    return result;
}

void PictureImport::Take(int index) {
    if (cancelled_) return;
    worked_[static_cast<std::size_t>(index)] = handedOver_.Take(index);
    ++done_;
    emit Progress(done_, static_cast<int>(jobs_.size()));
    if (done_ == static_cast<int>(jobs_.size())) emit Done();
}

void PictureImport::WaitForDone() {
    pool_.waitForDone();
    // The results wait as calls posted to this object.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void PictureImport::RemoveWorkFiles() {
    for (const QString& stem : {UprightWorkStem, ReversedWorkStem})
        KillIgnoringErrors(tempDir_ + stem + QLatin1Char('*'));
}

void PictureImport::Cancel() {
    pool_.clear();
    pool_.waitForDone();
    cancelled_ = true;
    RemoveWorkFiles();
}

QStringList PictureImport::Commit() {
    WaitForDone();
    QStringList unreadable;
    for (std::size_t i = 0; i < worked_.size(); ++i) {
        const ProposedCard& proposed = cards_[static_cast<qsizetype>(i)];
        const Worked& result = worked_[i];
        if (result.Upright.isEmpty() || !result.Unreadable.isEmpty()) {
            unreadable.append(result.Unreadable.isEmpty() ? proposed.File : QFileInfo(result.Unreadable).fileName());
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
