// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "translation/Translation.h"

#include "core/Tr.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <utility>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

/// Set once the windows have their translator, or need none.
bool done = false;

/// Loads what of `name` there is in a language or, "en" for "en-GB", in the one that it is a form of.
bool Load(QTranslator& translator, const char* name, const QString& language, const QString& folder)
{
    return translator.load(QLatin1String(name) + QLatin1Char('_') + QString(language).replace(u'-', u'_'), folder);
}

/// Null when the texts are to stay Italian.
std::unique_ptr<QTranslator> OwnTexts()
{
    auto texts = std::make_unique<QTranslator>();
    for (const QString& language : QLocale::system().uiLanguages()) {
        // Those who read Italian first need none, whatever else they read.
        if (language == u"it" || language.startsWith(u"it-")) {
            return nullptr;
        }
        for (const fs::path& folder : SharedFolders()) {
            if (Load(*texts, "zelvia", language, QString::fromStdString(folder.string()))) {
                return texts;
            }
        }
    }
    return nullptr;
}

/// The application's from then on.
void Install(std::unique_ptr<QTranslator> texts)
{
    texts->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(texts.release());
}

} // namespace

std::array<fs::path, 4> SharedFolders()
{
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    return {own / "../../share/zelvia", own / "../share/zelvia", own / "../share", own};
}

void InstallTranslation()
{
    TranslateTools();
    done = true;
    auto texts = OwnTexts();
    if (texts == nullptr) {
        return;
    }
    // Qt's own texts are in Italian already; those in its sources are English.
    for (QTranslator* other : QCoreApplication::instance()->findChildren<QTranslator*>()) {
        QCoreApplication::removeTranslator(other);
    }
    auto buttons = std::make_unique<QTranslator>();
    if (Load(*buttons, "qtbase", texts->language(), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        Install(std::move(buttons));
    }
    Install(std::move(texts));
}

void InstallGuideTranslation()
{
    if (std::exchange(done, true)) {
        return;
    }
    if (auto texts = OwnTexts()) {
        Install(std::move(texts));
    }
}

void TranslateTools()
{
    Tools::SetTranslator([](const char* italian) {
        static const std::unique_ptr<const QTranslator> texts = OwnTexts();
        return texts == nullptr ? std::string() : texts->translate("Tools", italian).toStdString();
    });
}

} // namespace zelvia
