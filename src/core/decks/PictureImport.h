#pragma once
// A deck made from a folder of pictures in one step: every picture of the
// folder offered as a card in the order people count, a title made from its
// file name, its reversed side found by name or made by turning it, and the
// cards the user keeps added to the deck being designed exactly as the card
// editor adds new cards one by one. The pictures are worked on all cores into
// Temp/ under names of their own; only Commit gives them their card names, so
// that a cancelled import leaves the design as it was.
#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QRunnable>
#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <functional>
#include <mutex>
#include <vector>

// Whether a comes before b as people count: runs of digits compare as
// numbers ("2" before "10"), letters without regard to case.
bool NaturalLess(const QString& a, const QString& b);

// A card's title from a picture's file name: the extension dropped,
// separators ('_', '-', '.', spaces) made single spaces, a leading number
// dropped (it only gave the order), each word begun with a capital, cut to
// the title's 50 characters. A name that is only a number keeps it.
QString TitleFromFileName(const QString& fileName);

// The upright picture whose reversed side this file is by its name: for
// "x.jpg", "x-reversed.jpg", "x_r.jpg" or "x reversed.jpg", of any picture
// extension and any case. uprightByName holds each picture under its name
// without extension, case folded (the first of the folder's order when two
// share one). Empty when it is no such file.
QString UprightPartnerOf(const QString& fileName, const QHash<QString, QString>& uprightByName);

// Where the reversed sides of the imported cards come from.
enum class ReversedSide { None, Turned, OwnFile };

// One picture of the folder offered as a card.
struct ProposedCard {
    QString File;          // its name in the folder
    QString ReversedFile;  // its reversed side found by name; empty when none
    QString Title;
    int CardType = 0;
    bool Included = true;
};

// A folder sorted out: the pictures as cards in natural order (reversed
// sides found by name stand beside their upright, not as cards of their
// own), and every other file, which is not a picture or cannot be read.
struct FolderPictures {
    QList<ProposedCard> Cards;
    QStringList NotPictures;
};
FolderPictures ListFolderPictures(const QString& folder, int cardType);

// A picture scaled to fit a square of that side, for the list; a null
// image when the file cannot be read.
QImage PictureThumbnail(const QString& path, int side);

// Works one side of a card into folder under the stem given: a picture in a
// format the deck's files hold (BMP, JPEG, GIF) is copied as it is; any other
// format Qt reads is converted to JPEG; with turn, the picture is turned half
// a turn. The name written (stem and extension), or empty when the source
// cannot be read or the result cannot be written.
QString WorkOnPicture(const QString& source, const QString& folder, const QString& stem, bool turn);

// The included cards that fit in the deck beside the cards it has; the
// titles of the included cards past the limit go to pastLimit.
QList<ProposedCard> CardsWithinLimit(const QList<ProposedCard>& cards, QStringList& pastLimit);

// The first included card whose title a new card may not take (blank, or
// the title of a card of the deck or of an earlier included card), with the
// card editor's message for it; -1 when every title may be taken.
int FirstTitleProblem(const QList<ProposedCard>& cards, QString& message);

// The names for a message, at most `shown` of them and how many more there
// are, so that a box never grows past the screen.
QString NamesForMessage(const QStringList& names, int shown = 10);

// The lock of every handover between a pool's workers and their owner. It is
// also the handover that ThreadSanitizer can see; Qt's own, inside the pool
// and the event queue, it cannot. One for all, so that a worker takes it
// before it reads anything of its own.
std::mutex& HandoverLock();

// What a pool's workers hand to the owner's thread: one result a worker, each
// in its own place, put there and taken out under the handover lock.
template <class Result>
struct HandedOver {
    std::vector<Result> Results;
    Result Take(int index) {
        const std::lock_guard<std::mutex> locked(HandoverLock());
        return Results[static_cast<std::size_t>(index)];
    }
};

// Runs work on a thread of pool, puts its result in into.Results[index] and
// calls owner's method (Q_INVOKABLE, taking the index) in the owner's
// thread. The work must hold its own copies of all it reads: the owner goes
// on meanwhile. into.Results must have its places before the work starts.
template <class Result>
void RunForOwner(QThreadPool& pool, std::function<Result()> work, int index, HandedOver<Result>& into, QObject* owner,
                 const char* method) {
    class Runner : public QRunnable {
    public:
        Runner(std::function<Result()> w, int i, HandedOver<Result>& o, QObject* q, const char* m)
            : work_(std::move(w)), index_(i), into_(o), owner_(q), method_(m) {}
        void run() override {
            // Everything the owner wrote before it handed this over.
            { const std::lock_guard<std::mutex> locked(HandoverLock()); }
            Result result = work_();
            {
                const std::lock_guard<std::mutex> locked(HandoverLock());
                into_.Results[static_cast<std::size_t>(index_)] = std::move(result);
            }
            QMetaObject::invokeMethod(owner_, method_, Qt::QueuedConnection, Q_ARG(int, index_));
        }

    private:
        std::function<Result()> work_;
        int index_;
        HandedOver<Result>& into_;
        QObject* owner_;
        const char* method_;
    };
    auto* runner = new Runner(std::move(work), index, into, owner, method);
    { const std::lock_guard<std::mutex> locked(HandoverLock()); }
    pool.start(runner);
}

// The pictures of a list of cards worked on all cores. Start returns at
// once; Progress and Done are emitted in the owner's thread. Each worker is
// handed its own copies of the names it needs and hands its result back to
// the owner's thread (RunForOwner): the workers share nothing that any of
// them writes.
class PictureImport : public QObject {
    Q_OBJECT
public:
    PictureImport(const QString& folder, const QList<ProposedCard>& cards, ReversedSide reversed);
    ~PictureImport() override;  // cancels what is left

    void Start();
    // Waits for every picture and takes in the results.
    void WaitForDone();
    // Stops the pictures not begun, waits for those under way and removes
    // every file the import wrote: Temp/ and the deck stay as they were.
    void Cancel();
    // Adds the worked cards to the deck in memory in list order, as the card
    // editor stores new cards; the names of the files that could not be
    // read, whose cards are not added.
    QStringList Commit();

signals:
    void Progress(int done, int total);
    void Done();

private:
    // What one worker is given: a card's sources and where its working files go.
    struct Job {
        QString Upright;    // the picture's path
        QString Reversed;   // the reversed side's source; empty for none
        bool Turn = false;  // the reversed side is the upright turned
        QString Folder;     // where the working files go (Temp/)
        QString Number;     // tells this card's working files apart
    };
    // What a worker hands back.
    struct Worked {
        QString Upright;     // name written in Temp/, empty on failure
        QString Reversed;    // empty when the side stays on the default picture
        QString Unreadable;  // the source that failed; empty when none did
    };
    static Worked WorkOn(const Job& job);

    Q_INVOKABLE void Take(int index);
    void RemoveWorkFiles();

    QString tempDir_;
    QList<ProposedCard> cards_;
    std::vector<Job> jobs_;
    HandedOver<Worked> handedOver_;
    std::vector<Worked> worked_;
    int done_ = 0;
    bool cancelled_ = false;
    QThreadPool pool_;
};
