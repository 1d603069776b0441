// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/years/AllDiaries.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <filesystem>
#include <memory>

class QThread;

namespace zelvia
{

/// Reads the diaries of a folder in a thread of its own.
class YearsLoader : public QObject
{
    Q_OBJECT

public:
    explicit YearsLoader(QObject* parent = nullptr);
    ~YearsLoader() override;

    /// Begins anew; what an earlier reading still finds is forgotten.
    void Load(const std::filesystem::path& folder);

Q_SIGNALS:
    void Progressed(int read, int of);
    void Loaded(const std::shared_ptr<const zelvia::AllDiaries>& all);
    /// The folder can't be read.
    void Failed(const QString& why);

private:
    void Stop();

    std::unique_ptr<QThread> thread_;
    std::atomic<bool> stopped_ = false;
    int number_ = 0; ///< Of the reading, so that what is late can be told from what is awaited.
};

} // namespace zelvia
