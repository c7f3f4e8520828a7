#include "screens/store/frmConvert.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/platform/FileSys.h"
#include "core/platform/Twips.h"
#include "core/store/Conversion.h"
#include "core/store/RunState.h"
#include "screens/platform/Events.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

// Set by a conversion that ran to its end; read by whoever showed the screen.
bool gConversionRan = false;

// The hourglass for as long as the conversion runs, whichever way it ends.
class HourglassWhile {
public:
    HourglassWhile() { SetScreenPointer(MousePointer::Hourglass); }
    ~HourglassWhile() { SetScreenPointer(MousePointer::Default); }
};

}  // namespace

frmConvert::frmConvert() {
    setCaption(tr("Cartomar Converter"));
    setFixedSize(TwipsToPixels(6600), TwipsToPixels(2400));

    lblMessage =
        new QLabel(tr("Cartomar detected an older database version.  Would you like to convert the old files to a new "
                      "compatible version?  (Note that a *.bkp copies will be created of the old database files.)"),
                   this);
    lblMessage->setObjectName(QStringLiteral("lblMessage"));
    lblMessage->setWordWrap(true);
    cmdConvert = new QPushButton(tr("Con&vert"), this);
    cmdConvert->setObjectName(QStringLiteral("cmdConvert"));
    cmdClose = new QPushButton(tr("&Cancel"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdConvert);
    buttons->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblMessage, 1);
    layout->addLayout(buttons);

    connect(cmdConvert, &QPushButton::clicked, this, Handler([this] { cmdConvert_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
}

void frmConvert::Form_Load() {
    CentreInFrame(*this);
    cmdConvert->setFocus();
}

void frmConvert::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}

void frmConvert::cmdConvert_Click() {
    // A conversion that failed half-way has already written backups and maybe
    // some new files; running it again would copy converted files over the
    // backups of the old ones, so it runs at most once per showing.
    cmdConvert->setEnabled(false);
    {
        HourglassWhile hourglass;
        try {
            ConvertDatabase();
        } catch (...) {
            KillIgnoringErrors(TheRun.Paths.TempDir + QStringLiteral("Temp.*"));
            throw;
        }
    }
    gConversionRan = true;
    Unload();
}

void frmConvert::cmdClose_Click() { Unload(); }

bool RunConversionScreen() {
    gConversionRan = false;
    Get<frmConvert>().Show(true);
    return gConversionRan;
}
