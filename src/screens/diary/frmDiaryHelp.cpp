#include "screens/diary/frmDiaryHelp.h"

frmDiaryHelp::frmDiaryHelp()
    : HelpPanelForm(tr("Quick Help"),
                    tr("The Tarot Spread is meant to aid you in your everyday life.  Examine the spread as a whole "
                       "and use the additional tools included on the spread to help you understand the meaning "
                       "behind each card.  By double clicking on a card, you get the description of the specific "
                       "spread location and the interpretation and keywords of the card itself if it has been "
                       "selected. Furthermore, you can enlarge the card's picture for a closer view. The card is "
                       "selected from the cards list and its state is specified by the check box."),
                    true) {}
