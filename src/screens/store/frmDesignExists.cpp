#include "screens/store/frmDesignExists.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/records/Records.h"
#include "core/store/RunState.h"
#include "screens/platform/Events.h"
#include "screens/platform/MsgBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
QPushButton* Button(QWidget* parent, const QString& caption, const char* name) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QLatin1String(name));
    return b;
}
}  // namespace

frmDesignExists::frmDesignExists() {
    setObjectName(QStringLiteral("frmDesignExists"));
    auto* layout = new QVBoxLayout(this);

    picDoWhat = new QWidget(this);
    picDoWhat->setObjectName(QStringLiteral("picDoWhat"));
    auto* doWhat = new QVBoxLayout(picDoWhat);
    lblDoWhat = new QLabel(tr("Design Already Exists. What do you want to do?"), picDoWhat);
    doWhat->addWidget(lblDoWhat);
    auto* row1 = new QHBoxLayout;
    auto* row2 = new QHBoxLayout;
    cmdOverwrite = Button(picDoWhat, tr("&Overwrite"), "cmdOverwrite");
    cmdSkip = Button(picDoWhat, tr("&Skip"), "cmdSkip");
    cmdRename = Button(picDoWhat, tr("&Rename"), "cmdRename");
    cmdOverwriteAll = Button(picDoWhat, tr("Overwrite &All"), "cmdOverwriteAll");
    cmdSkipAll = Button(picDoWhat, tr("S&kip All"), "cmdSkipAll");
    row1->addWidget(cmdOverwrite);
    row1->addWidget(cmdSkip);
    row1->addWidget(cmdRename);
    row2->addWidget(cmdOverwriteAll);
    row2->addWidget(cmdSkipAll);
    doWhat->addLayout(row1);
    doWhat->addLayout(row2);
    layout->addWidget(picDoWhat);

    picRename = new QWidget(this);
    picRename->setObjectName(QStringLiteral("picRename"));
    auto* rename = new QVBoxLayout(picRename);
    rename->addWidget(new QLabel(tr("Enter the new design name:"), picRename));
    txtDesignName = new QLineEdit(picRename);
    txtDesignName->setObjectName(QStringLiteral("txtDesignName"));
    txtDesignName->setMaxLength(30);
    rename->addWidget(txtDesignName);
    auto* row3 = new QHBoxLayout;
    cmdOK = Button(picRename, tr("&OK"), "cmdOK");
    cmdCancel = Button(picRename, tr("&Cancel"), "cmdCancel");
    row3->addWidget(cmdOK);
    row3->addWidget(cmdCancel);
    rename->addLayout(row3);
    layout->addWidget(picRename);
    picRename->hide();
    resize(420, 140);

    connect(cmdOverwrite, &QPushButton::clicked, this, Handler([this] { cmdOverwrite_Click(); }));
    connect(cmdOverwriteAll, &QPushButton::clicked, this, Handler([this] { cmdOverwriteAll_Click(); }));
    connect(cmdSkip, &QPushButton::clicked, this, Handler([this] { cmdSkip_Click(); }));
    connect(cmdSkipAll, &QPushButton::clicked, this, Handler([this] { cmdSkipAll_Click(); }));
    connect(cmdRename, &QPushButton::clicked, this, Handler([this] { cmdRename_Click(); }));
    connect(cmdOK, &QPushButton::clicked, this, Handler([this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    // Enter in the name box acts as OK.
    connect(txtDesignName, &QLineEdit::returnPressed, this, Handler([this] { cmdOK_Click(); }));
}

void frmDesignExists::Form_Load() { CentreInFrame(*this); }

void frmDesignExists::Ask(int design, const QString& title) {
    Design = design;
    Title = title;
    // One sentence for each kind, so that a language can agree its words
    // with the kind.
    static const char* const kCaptions[3] = {QT_TR_NOOP("Card '%1' exists."), QT_TR_NOOP("Deck '%1' exists."),
                                             QT_TR_NOOP("Spread '%1' exists.")};
    setCaption(tr(kCaptions[(design >= 0 && design <= 2) ? design : 0]).arg(Title));
    Beep();
    Show(true);
}

void frmDesignExists::Choose(int answer) {
    TheRun.DesignExistsChoice = answer;
    Unload();
}

void frmDesignExists::cmdOverwrite_Click() { Choose(DesignExistsOverwrite); }
void frmDesignExists::cmdOverwriteAll_Click() { Choose(DesignExistsOverwriteAll); }
void frmDesignExists::cmdSkip_Click() { Choose(DesignExistsSkip); }
void frmDesignExists::cmdSkipAll_Click() { Choose(DesignExistsSkipAll); }

void frmDesignExists::cmdRename_Click() {
    picDoWhat->hide();
    picRename->show();
    // The proposal keeps room for " (Copy)" within the 30 characters. It is
    // not translated: a name the program proposes becomes the design's, and
    // designs come out the same in every language.
    const QString padded = (Title + QString(30, QLatin1Char(' '))).left(23);
    txtDesignName->setText(padded.trimmed() + QStringLiteral(" (Copy)"));
    txtDesignName->setFocus();
}

void frmDesignExists::cmdCancel_Click() {
    txtDesignName->clear();
    picRename->hide();
    picDoWhat->show();
}

void frmDesignExists::cmdOK_Click() {
    if (TrimField(txtDesignName->text()).isEmpty()) {
        MsgBox(tr("You must enter a design name."), vbInformation);
        return;
    }
    const QString name = txtDesignName->text().left(30);
    const QString padded = name + QString(30 - name.size(), QLatin1Char(' '));
    if (NameInUse && NameInUse(Design, padded)) {
        MsgBox(tr("You already have a design with this name. Please enter a change the name or "
                  "click 'Cancel' to return to the previous page."),
               vbInformation);
        return;
    }
    TheRun.DesignExistsNewName = name.trimmed();
    Choose(DesignExistsRename);
}

void frmDesignExists::Form_Unload(bool&) {
    // The installation goes on after the answer.
    SetScreenPointer(MousePointer::Hourglass);
}
