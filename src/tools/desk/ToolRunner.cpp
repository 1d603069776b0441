// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ToolRunner.h"

#include "core/Tr.h"
#include "tools/strumenti/Actions.h"

#include <QMetaObject>
#include <QRegularExpression>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <ostream>
#include <streambuf>
#include <utility>

namespace zelvia
{
namespace
{

/// Ends an action from within what it says. No failure of its own, so that the action doesn't report it.
struct Cancelled {
};

/// Keeps what is said and passes its lines on.
class Listener : public std::streambuf
{
public:
    Listener(const std::atomic<bool>& cancelled, std::function<void(const std::string&)> heard)
        : cancelled_(cancelled), heard_(std::move(heard))
    {
    }

    const std::string& Text() const { return text_; }

protected:
    int_type overflow(int_type c) override
    {
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            const char one = traits_type::to_char_type(c);
            xsputn(&one, 1);
        }
        return traits_type::not_eof(c);
    }

    std::streamsize xsputn(const char* characters, std::streamsize count) override
    {
        if (cancelled_) {
            throw Cancelled();
        }
        text_.append(characters, static_cast<std::size_t>(count));
        if (heard_ && text_.ends_with('\n')) {
            const std::size_t end = text_.size() - 1;
            const std::size_t start = end == 0 ? std::string::npos : text_.rfind('\n', end - 1);
            heard_(text_.substr(start == std::string::npos ? 0 : start + 1, end - (start + 1)));
        }
        return count;
    }

private:
    const std::atomic<bool>& cancelled_;
    std::function<void(const std::string&)> heard_;
    std::string text_;
};

/// What is said on a page: there no program's name goes ahead, and what can be typed is of no use.
QString Told(const std::string& text, int status)
{
    const QString program = QStringLiteral("zelvia-strumenti: ");
    QStringList lines;
    for (QString line : QString::fromStdString(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(program)) {
            line = line.mid(program.size());
            line[0] = line.at(0).toUpper();
        }
        lines << line;
    }
    return status == kMisused ? lines.value(0) : lines.join(QLatin1Char('\n'));
}

} // namespace

bool Says(const ToolOutcome& outcome, const char* sentence, const char* first)
{
    QStringList parts;
    for (const QString& part : QString::fromStdString(Tools::Tr(sentence, first, "\n")).split(QLatin1Char('\n'))) {
        parts << QRegularExpression::escape(part);
    }
    return outcome.told.contains(QRegularExpression(parts.join(QStringLiteral("[0-9]+"))));
}

namespace
{

ToolOutcome Try(const ToolRunner::Task& task, const std::atomic<bool>& cancelled,
                std::function<void(const std::string&)> heard)
{
    Listener outListener(cancelled, {});
    Listener errListener(cancelled, heard);
    std::ostream out(&outListener);
    std::ostream err(&errListener);
    // What the listeners throw has to get past the streams.
    out.exceptions(std::ios::badbit);
    err.exceptions(std::ios::badbit);
    Terminal terminal{out, err, {}, [&](int page, int pages) {
                          if (cancelled) {
                              throw Cancelled();
                          }
                          heard(Tools::Tr("pagina %1 su %2", page, pages));
                      }};
    ToolOutcome outcome;
    try {
        outcome.status = task(terminal);
    } catch (const Cancelled&) {
        outcome.cancelled = true;
    } catch (const std::exception& error) {
        err << error.what() << "\n";
    } catch (...) {
        err << "Errore inatteso\n";
    }
    outcome.out = QString::fromStdString(outListener.Text());
    outcome.told = Told(errListener.Text(), outcome.status);
    return outcome;
}

} // namespace

ToolRunner::~ToolRunner()
{
    cancelled_ = !IsWriting();
    if (thread_ != nullptr) {
        thread_->wait();
        delete thread_;
        jobs_.pop_front();
    }
    cancelled_ = false;
    for (const Job& job : jobs_) {
        if (job.kind == Kind::Writes) {
            Try(job.task, cancelled_, [](const std::string& /*line*/) {});
        }
    }
}

void ToolRunner::Run(Kind kind, QObject& receiver, Task task, Done done)
{
    if (kind == Kind::Reads) {
        if (IsBusy() && jobs_.front().kind == Kind::Reads && jobs_.front().receiver == &receiver) {
            cancelled_ = true;
            jobs_.front().receiver.clear();
        }
        for (auto job = jobs_.begin() + (IsBusy() ? 1 : 0); job != jobs_.end();) {
            job = job->kind == Kind::Reads && job->receiver == &receiver ? jobs_.erase(job) : job + 1;
        }
    }
    failed_ = failed_ && kind == Kind::Reads;
    jobs_.push_back({kind, &receiver, std::move(task), std::move(done)});
    if (!IsBusy()) {
        StartNext();
    }
}

void ToolRunner::Run(Kind kind, QObject& receiver, const std::vector<std::string>& words, Done done)
{
    Run(
        kind, receiver, [words](Terminal& terminal) { return RunTools(words, terminal); }, std::move(done));
}

bool ToolRunner::HasToWrite() const
{
    return std::any_of(jobs_.begin(), jobs_.end(), [](const Job& job) { return job.kind == Kind::Writes; });
}

void ToolRunner::Cancel()
{
    cancelled_ = IsBusy() && !IsWriting();
    for (auto job = jobs_.begin() + (IsBusy() ? 1 : 0); job != jobs_.end();) {
        job = job->kind == Kind::Reads ? jobs_.erase(job) : job + 1;
    }
}

void ToolRunner::StartNext()
{
    if (jobs_.empty()) {
        Q_EMIT StateChanged();
        return;
    }
    cancelled_ = false;
    const auto outcome = std::make_shared<ToolOutcome>();
    thread_ = QThread::create([this, outcome, task = jobs_.front().task] {
        *outcome = Try(task, cancelled_, [this](const std::string& line) {
            QMetaObject::invokeMethod(
                this, [this, line] { Q_EMIT Told(QString::fromStdString(line)); }, Qt::QueuedConnection);
        });
    });
    connect(thread_, &QThread::finished, this, [this, outcome] { Finish(*outcome); });
    thread_->start();
    Q_EMIT StateChanged();
}

void ToolRunner::Finish(const ToolOutcome& outcome)
{
    std::exchange(thread_, nullptr)->deleteLater();
    const Job job = std::move(jobs_.front());
    jobs_.pop_front();
    if (job.kind == Kind::Writes) {
        failed_ = outcome.status != kDone;
    }
    // The next one starts first: what this one's receiver asks for then has to wait its turn.
    StartNext();
    if (job.receiver != nullptr) {
        job.done(outcome);
    }
}

} // namespace zelvia
