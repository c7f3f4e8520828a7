#include "screens/shell/frmHelpViewer.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "core/platform/FileSys.h"
#include "screens/widgets/ScreenPlacement.h"

frmHelpViewer::frmHelpViewer() {
    setCaption(tr("Cartomar Help"));
    // Wide enough for the pictures of the screens at their own size.
    resize(960, 680);

    txtHelp = new QTextBrowser(this);
    txtHelp->setOpenLinks(true);
    txtHelp->setOpenExternalLinks(false);
    cmdContents = new QPushButton(tr("C&ontents"), this);
    cmdBack = new QPushButton(tr("&Back"), this);
    cmdClose = new QPushButton(tr("&Close"), this);
    cmdBack->setEnabled(false);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdContents);
    buttons->addWidget(cmdBack);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(txtHelp, 1);

    connect(txtHelp, &QTextBrowser::backwardAvailable, cmdBack, &QPushButton::setEnabled);
    connect(cmdContents, &QPushButton::clicked, this, Handler([this] { txtHelp->home(); }));
    connect(cmdBack, &QPushButton::clicked, this, Handler([this] { txtHelp->backward(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { Unload(); }));
}

void frmHelpViewer::Form_Load() { CentreInFrame(*this); }

void frmHelpViewer::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        Unload();
    }
}

void frmHelpViewer::ShowFile(const QString& path) {
    const QString file = NativePath(path);
    // The manual's pictures stand beside it, in Help/images.
    txtHelp->setSearchPaths({FolderOf(file)});
    txtHelp->setSource(QUrl::fromLocalFile(file), QTextDocument::HtmlResource);
    Show();
}

void ShowHelpFile(const QString& path) { Get<frmHelpViewer>().ShowFile(path); }
