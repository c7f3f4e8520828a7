#pragma once
// The maker's addresses: the web address heads the main screen and every
// printed page, the support address is where a user with a half-converted
// database is sent.
#include <QString>

inline const QString MakerWebAddress = QStringLiteral("www.ondinesoftware.com");
inline const QString SupportAddress = QStringLiteral("support@ondinesoftware.com");
