#include "screens/spreads/frmSaveSpread.h"

#include <QLabel>
#include <QPushButton>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/platform/Twips.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/DesignCommit.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/ScreenPlacement.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDesignSpread.h"

namespace {
QRect At(int left, int top, int width, int height) {
    return QRect(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height));
}
}  // namespace

frmSaveSpread::frmSaveSpread() {
    setObjectName(QStringLiteral("frmSaveSpread"));
    setCaption(QStringLiteral("Save Spread"));
    resize(TwipsToPixels(5400), TwipsToPixels(4200));

    auto* lblSaveAs = new QLabel(QStringLiteral("Save spread as:"), this);
    lblSaveAs->setGeometry(At(120, 120, 3600, 300));
    txtSaveAs = new TextBox(this);
    txtSaveAs->setObjectName(QStringLiteral("txtSaveAs"));
    txtSaveAs->setMaxLength(30);
    txtSaveAs->setGeometry(At(120, 420, 3600, 330));
    auto* lblNames = new QLabel(QStringLiteral("Saved spreads:"), this);
    lblNames->setGeometry(At(120, 870, 3600, 300));
    lstSpreadNames = new ListBox(this);
    lstSpreadNames->setSorted(true);
    lstSpreadNames->setObjectName(QStringLiteral("lstSpreadNames"));
    lstSpreadNames->setGeometry(At(120, 1170, 3600, 2820));

    cmdSave = new QPushButton(QStringLiteral("&Save"), this);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdSave->setGeometry(At(3900, 420, 1320, 420));
    cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setGeometry(At(3900, 960, 1320, 420));

    connect(txtSaveAs, &TextBox::Change, this, Handler([this] { txtSaveAs_Change(); }));
    connect(lstSpreadNames, &ListBox::Click, this, Handler([this] { lstSpreadNames_Click(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmSaveSpread::Form_Load() {
    CentreInFrame(*this);
    txtSaveAs->setText(CurrentSpread.SpreadName.Trimmed());
    // Read into a scratch record, so that the spread in hand stays intact.
    RecordReader<SpreadRecord> reader(SpreadsPath);
    while (reader.Next(ScratchSpread)) lstSpreadNames->AddItem(ScratchSpread.SpreadName.Trimmed());
    cmdSave->setEnabled(false);
}

void frmSaveSpread::txtSaveAs_Change() {
    if (!txtSaveAs->Text().isEmpty()) cmdSave->setEnabled(true);
}

void frmSaveSpread::lstSpreadNames_Click() {
    cmdSave->setEnabled(true);
    txtSaveAs->setText(lstSpreadNames->Text());
}

void frmSaveSpread::cmdCancel_Click() { Unload(); }

void frmSaveSpread::cmdSave_Click() {
    const QString name = TrimField(txtSaveAs->Text());
    if (name.isEmpty()) {
        MsgBox(QStringLiteral("Please select a name to save the spread as."), vbExclamation);
        return;
    }
    const int n = FindSpreadByName(name);
    if (n >= 0 &&
        MsgBox(QStringLiteral("Spread already exists. Overwrite?"), vbYesNo | vbQuestion | vbDefaultButton2) == vbNo)
        return;
    SaveSpread(name, n >= 0 ? n : CountSpreads() + 1);

    if (IsLoaded<frmDesignSpread>()) {
        Get<frmDesignSpread>().SpreadSaved();
    }
    Unload();
}

void frmSaveSpread::SaveSpread(const QString& name, int n) {
    SpreadRecord spread = CurrentSpread;
    const int count = CountSpreads();
    // A new name is a new design: saving a known spread under it makes an
    // independent copy and leaves the old record as it was. Over a record,
    // the id stays and that record's background goes, in the same step as
    // the new one comes, so that the new picture's name is drawn as if the
    // old one were gone already.
    QString going;
    if (n > count) {
        spread.SpreadId = NextSpreadId();
    } else {
        if (!GetRecord(SpreadsPath, n, ScratchSpread)) RaiseError(errInputPastEndOfFile);
        going = DesignFilePath(ScratchSpread.BackgroundFile.Value());
    }

    DesignCommit commit;
    // The picture in Temp/ takes its permanent S name in Cards/ here.
    const QString working = spread.BackgroundFile.Value();
    if (!TrimField(working).isEmpty() && FileExists(TempDir + TrimField(working))) {
        spread.BackgroundFile = NewBackgroundName(working, TakenStems({CardsDir}, {going}));
        commit.AddFile(TempDir + working, spread.BackgroundFile.Value());
    } else {
        spread.BackgroundFile = QString();
    }
    spread.SpreadName = name;
    spread.ModifiedOn = OleToday();
    spread.SpreadRevision = static_cast<Integer>(spread.SpreadRevision + 1);

    // Its locations go after those of every other spread, numbered 1 up.
    QByteArray locations;
    for (int i = 1; i <= spread.LocationCount; ++i) {
        SpreadLocations(i).LocationSpreadId = spread.SpreadId;
        SpreadLocations(i).LocationNumber = static_cast<Integer>(i);
        locations += EncodeRecord(SpreadLocations(i));
    }
    const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
    commit.AddRecordFile(LocationsPath, LocationRecord::Length, [&](const char* location, int) {
        return RawInteger(location, idAt) == spread.SpreadId ? nullptr : location;
    }, locations);
    const QByteArray record = EncodeRecord(spread);
    commit.AddRecordFile(SpreadsPath, SpreadRecord::Length, [&](const char* r, int number) {
        return number == n ? record.constData() : r;
    }, n > count ? record : QByteArray());
    commit.DropFile(going);
    commit.Commit();
    CurrentSpread = spread;
}

void frmSaveSpread::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) &&
        (focusWidget() == txtSaveAs || focusWidget() == lstSpreadNames)) {
        handled = true;
        cmdSave_Click();
    }
}

void frmSaveSpread::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    }
}
