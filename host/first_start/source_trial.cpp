#include "host/first_start/source_trial.hpp"

#include "family/data/engine/failure_words.hpp"

#include <QMetaObject>

#include <exception>
#include <utility>

namespace kova::host {

SourceTrial::SourceTrial(Look look, QObject* parent) : QObject(parent), look_(std::move(look)) { }

SourceTrial::~SourceTrial()
{
    if (thread_.joinable())
        thread_.join();
}

void SourceTrial::Begin(const std::string& source, std::function<void(const Refusal&)> tell)
{
    tell_ = std::move(tell);
    thread_ = std::thread([this, source] {
        Refusal refusal;
        try {
            refusal = look_(source);
        } catch (const std::exception& failure) {
            refusal = family::WordsFor(failure);
        }
        QMetaObject::invokeMethod(
            this, [this, refusal] { End(refusal); }, Qt::QueuedConnection);
    });
}

void SourceTrial::End(const Refusal& refusal)
{
    thread_.join();
    std::exchange(tell_, nullptr)(refusal);
}

} // namespace kova::host
