#pragma once
#include <QString>

// Creates the download folder when missing and makes sure nobody else can
// place or swap files in it: on Linux it must be a real folder (not a link)
// owned by this user, and it is made private. False with a reason otherwise.
bool prepareDownloadFolder(const QString& folder, QString* why);
