// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/YearsLoader.h"

#include <QThread>

namespace zelvia
{

YearsLoader::YearsLoader(QObject* parent) : QObject(parent) {}

YearsLoader::~YearsLoader()
{
    Stop();
}

void YearsLoader::Stop()
{
    if (thread_) {
        stopped_ = true;
        thread_->wait();
        thread_.reset();
    }
}

void YearsLoader::Load(const std::filesystem::path& folder)
{
    Stop();
    stopped_ = false;
    const int number = ++number_;
    // Told in the thread of the window, unless another reading has begun.
    const auto tell = [this, number](auto say) {
        QMetaObject::invokeMethod(
            this,
            [this, number, say = std::move(say)] {
                if (number == number_) {
                    say();
                }
            },
            Qt::QueuedConnection);
    };
    thread_.reset(QThread::create([this, tell, folder] {
        try {
            const auto all = std::make_shared<const AllDiaries>(ReadAllDiaries(folder, [&](int read, int of) {
                tell([this, read, of] { Q_EMIT Progressed(read, of); });
                return !stopped_;
            }));
            tell([this, all] { Q_EMIT Loaded(all); });
        } catch (const std::exception& failure) {
            tell([this, why = QString::fromLocal8Bit(failure.what())] { Q_EMIT Failed(why); });
        }
    }));
    thread_->start();
}

} // namespace zelvia
