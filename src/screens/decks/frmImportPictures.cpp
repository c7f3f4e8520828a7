#include "screens/decks/frmImportPictures.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QEventLoop>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPixmap>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTableView>

#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/platform/MsgBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
constexpr int ThumbnailSide = 48;
constexpr int TypeRole = Qt::UserRole + 1;
}  // namespace

frmImportPictures::frmImportPictures() {
    setObjectName(QStringLiteral("frmImportPictures"));
    setCaption(tr("Import Pictures"));
    resize(TwipsToPixels(9600), TwipsToPixels(7200));
    lblFolder = MakeLabel(this, QString(), At(240, 120, 9120, 285), "lblFolder");

    mdlPictures = new QStandardItemModel(0, 4, this);
    mdlPictures->setHorizontalHeaderLabels({tr("Picture"), tr("Title"), tr("Type"), tr("Reversed Side")});
    tblPictures = new QTableView(this);
    tblPictures->setObjectName(QStringLiteral("tblPictures"));
    tblPictures->setModel(mdlPictures);
    tblPictures->setGeometry(At(240, 480, 9120, 4560));
    tblPictures->setSelectionBehavior(QAbstractItemView::SelectRows);
    tblPictures->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tblPictures->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                                 QAbstractItemView::AnyKeyPressed);
    tblPictures->setIconSize(QSize(ThumbnailSide, ThumbnailSide));
    tblPictures->verticalHeader()->setDefaultSectionSize(ThumbnailSide + 4);
    tblPictures->verticalHeader()->hide();
    tblPictures->setColumnWidth(ColPicture, TwipsToPixels(3000));
    tblPictures->setColumnWidth(ColTitle, TwipsToPixels(2700));
    tblPictures->setColumnWidth(ColType, TwipsToPixels(1500));
    tblPictures->horizontalHeader()->setStretchLastSection(true);

    QLabel* typeLabel = MakeLabel(this, tr("T&ype of the selected cards:"), At(240, 5205, 2700, 285));
    cboType = new QComboBox(this);
    typeLabel->setBuddy(cboType);
    cboType->setObjectName(QStringLiteral("cboType"));
    cboType->setGeometry(At(2940, 5160, 2160, 360));
    cmdSetType = MakeButton(this, "cmdSetType", tr("&Set Type"), At(5220, 5130, 1320, 420));

    fraReversed = new QGroupBox(tr("Reversed Side"), this);
    fraReversed->setObjectName(QStringLiteral("fraReversed"));
    fraReversed->setGeometry(At(240, 5640, 6000, 1320));
    optNone = new QRadioButton(tr("&None: the default picture"), fraReversed);
    optTurned = new QRadioButton(tr("The same picture &turned"), fraReversed);
    optOwnFile = new QRadioButton(tr("A &file of its own, found by name"), fraReversed);
    int top = 300;
    for (QRadioButton* option : {optNone, optTurned, optOwnFile}) {
        option->setGeometry(At(180, top, 5640, 300));
        connect(option, &QRadioButton::clicked, this, Handler([this] { optReversed_Click(); }));
        top += 330;
    }
    optNone->setObjectName(QStringLiteral("optNone"));
    optTurned->setObjectName(QStringLiteral("optTurned"));
    optOwnFile->setObjectName(QStringLiteral("optOwnFile"));

    cmdOK = MakeButton(this, "cmdOK", tr("OK"), At(6600, 6540, 1260, 420));
    cmdCancel = MakeButton(this, "cmdCancel", tr("Cancel"), At(8100, 6540, 1260, 420));
    connect(cmdSetType, &QPushButton::clicked, this, Handler([this] { cmdSetType_Click(); }));
    connect(cmdOK, &QPushButton::clicked, this, Handler([this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    setWayOut([this] { cmdCancel_Click(); });
}

frmImportPictures::~frmImportPictures() {
    // Thumbnails not begun are dropped; those under way are waited for, and
    // Qt drops the calls they posted to this screen once it is gone.
    thumbnailPool_.clear();
    thumbnailPool_.waitForDone();
}

void frmImportPictures::ShowFolder(const QString& folder) {
    folder_ = folder;
    lblFolder->setText(QDir::toNativeSeparators(QDir::cleanPath(folder)));
    for (int i = 0; i < 4; ++i)
        if (TheRun.CurrentDeck.CardTypeUsed[static_cast<std::size_t>(i)])
            cboType->addItem(TheRun.CurrentDeck.CardTypeName[static_cast<std::size_t>(i)].Trimmed(), i);
    const FolderPictures found = ListFolderPictures(folder, cboType->count() > 0 ? cboType->itemData(0).toInt() : 0);
    proposed_ = found.Cards;
    for (const ProposedCard& card : proposed_) {
        auto* picture = new QStandardItem(card.File);
        picture->setCheckable(true);
        picture->setCheckState(Qt::Checked);
        picture->setEditable(false);
        auto* title = new QStandardItem(card.Title);
        auto* type = new QStandardItem(cboType->itemText(0));
        type->setData(card.CardType, TypeRole);
        type->setEditable(false);
        auto* reversed = new QStandardItem;
        reversed->setEditable(false);
        mdlPictures->appendRow({picture, title, type, reversed});
    }
    // Never dropped silently: what cannot become a card is shown, greyed.
    for (const QString& name : found.NotPictures) {
        QList<QStandardItem*> row;
        for (const QString& text : {name, tr("Not a picture, or cannot be read"), QString(), QString()}) {
            row.append(new QStandardItem(text));
            row.last()->setFlags(Qt::NoItemFlags);
        }
        mdlPictures->appendRow(row);
    }
    // A deck without reversed cards shows the default picture on that side.
    const bool reversedSides = TheRun.CurrentDeck.IncludesReversed != 0;
    fraReversed->setEnabled(reversedSides);
    const bool anyOwnFile = std::any_of(proposed_.begin(), proposed_.end(),
                                        [](const ProposedCard& card) { return !card.ReversedFile.isEmpty(); });
    (reversedSides && anyOwnFile ? optOwnFile : reversedSides ? optTurned : optNone)->setChecked(true);
    optReversed_Click();
    CentreInFrame(*this);
    LoadThumbnails();
    tblPictures->setFocus();
    if (!proposed_.isEmpty()) tblPictures->setCurrentIndex(mdlPictures->index(0, ColTitle));
    Show(true);
}

void frmImportPictures::LoadThumbnails() {
    thumbnails_.Results.resize(static_cast<std::size_t>(proposed_.size()));
    for (int row = 0; row < proposed_.size(); ++row) {
        const QString path = QDir(folder_).filePath(proposed_[row].File);
        RunForOwner<QImage>(
            thumbnailPool_, [path] { return PictureThumbnail(path, ThumbnailSide); }, row, thumbnails_, this,
            "ShowThumbnail");
    }
}

void frmImportPictures::ShowThumbnail(int row) {
    mdlPictures->item(row, ColPicture)->setData(QPixmap::fromImage(thumbnails_.Take(row)), Qt::DecorationRole);
}

ReversedSide frmImportPictures::ChosenReversedSide() const {
    if (optTurned->isChecked()) return ReversedSide::Turned;
    if (optOwnFile->isChecked()) return ReversedSide::OwnFile;
    return ReversedSide::None;
}

void frmImportPictures::optReversed_Click() {
    const ReversedSide side = ChosenReversedSide();
    for (int row = 0; row < proposed_.size(); ++row) {
        QString text;
        if (side == ReversedSide::Turned) text = tr("turned");
        else if (side == ReversedSide::OwnFile)
            text = proposed_[row].ReversedFile.isEmpty() ? tr("none found") : proposed_[row].ReversedFile;
        mdlPictures->item(row, ColReversed)->setText(text);
    }
}

void frmImportPictures::cmdSetType_Click() {
    if (cboType->currentIndex() < 0) return;
    for (const QModelIndex& index : tblPictures->selectionModel()->selectedRows()) {
        if (index.row() >= proposed_.size()) continue;
        QStandardItem* type = mdlPictures->item(index.row(), ColType);
        type->setText(cboType->currentText());
        type->setData(cboType->currentData(), TypeRole);
    }
}

QList<ProposedCard> frmImportPictures::CardsInList() const {
    QList<ProposedCard> cards = proposed_;
    for (int row = 0; row < cards.size(); ++row) {
        cards[row].Included = mdlPictures->item(row, ColPicture)->checkState() == Qt::Checked;
        cards[row].Title = TrimField(mdlPictures->item(row, ColTitle)->text());
        cards[row].CardType = mdlPictures->item(row, ColType)->data(TypeRole).toInt();
    }
    return cards;
}

void frmImportPictures::cmdOK_Click() {
    const QList<ProposedCard> cards = CardsInList();
    QString problem;
    if (const int row = FirstTitleProblem(cards, problem); row >= 0) {
        MsgBox(problem, vbInformation);
        tblPictures->setCurrentIndex(mdlPictures->index(row, ColTitle));
        return;
    }
    QStringList pastLimit;
    const QList<ProposedCard> within = CardsWithinLimit(cards, pastLimit);
    if (!pastLimit.isEmpty())
        MsgBox(tr("%1\nThese cards were not added: %2").arg(CardLimitMessage(), NamesForMessage(pastLimit)),
               vbCritical);
    if (!within.isEmpty()) {
        PictureImport run(folder_, within, ChosenReversedSide());
        QProgressDialog progress(tr("Importing pictures..."), tr("Cancel"), 0, static_cast<int>(within.size()), this);
        progress.setWindowModality(Qt::WindowModal);
        progress.setMinimumDuration(400);
        QEventLoop waiting;
        connect(&run, &PictureImport::Progress, &progress, [&progress](int done) { progress.setValue(done); });
        connect(&run, &PictureImport::Done, &waiting, &QEventLoop::quit);
        connect(&progress, &QProgressDialog::canceled, &waiting, &QEventLoop::quit);
        run.Start();
        waiting.exec();
        if (progress.wasCanceled()) {
            // Nothing reached the deck: the list stays for another try.
            run.Cancel();
            return;
        }
        const QStringList unreadable = run.Commit();
        progress.reset();
        frmDesignDeck& designer = Get<frmDesignDeck>();
        designer.RefreshCardList();
        if (unreadable.size() < within.size()) designer.DesignModified = true;
        if (!unreadable.isEmpty())
            MsgBox(tr("These pictures could not be read and were not added: %1").arg(NamesForMessage(unreadable)),
                   vbExclamation);
    }
    Unload();
}

void frmImportPictures::cmdCancel_Click() { Unload(); }

void frmImportPictures::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    // While a title is being typed, the keys belong to its box.
    const QWidget* focus = QApplication::focusWidget();
    if (focus && focus != tblPictures && tblPictures->isAncestorOf(focus)) return;
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if ((key == Qt::Key_Delete || key == Qt::Key_Space) && (!focus || focus == tblPictures)) {
        // Delete leaves the selected rows out; Space keeps them or leaves
        // them out as the current row is not, on whichever column it stands
        // (the view would begin to type over a title with it).
        handled = true;
        const int current = tblPictures->currentIndex().row();
        const bool keep = key == Qt::Key_Space && current >= 0 && current < proposed_.size() &&
                          mdlPictures->item(current, ColPicture)->checkState() != Qt::Checked;
        for (const QModelIndex& index : tblPictures->selectionModel()->selectedRows())
            if (index.row() < proposed_.size())
                mdlPictures->item(index.row(), ColPicture)->setCheckState(keep ? Qt::Checked : Qt::Unchecked);
    }
}
