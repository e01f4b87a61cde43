#pragma once

#include "family/csv/importing.hpp"
#include "family/registers/import_undo.hpp"

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QTableWidget;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::registers {

/// How far an import is, what is wrong with its file, what it changes, and what came of it.
class CheckPage : public QWidget {
public:
    /// So many are shown at most; the others are counted.
    static constexpr std::size_t MostShown = 1000;

    explicit CheckPage(QWidget* parent);

    /// Work begins: everything else is gone.
    void Begin(const QString& what);
    void Reach(const QString& what, long long done, long long total);

    void ShowProblems(const family::csv::ImportReport& report,
                      const std::vector<family::csv::Problem>& problems);
    /// What was found good, before anything is written.
    void ShowGood(const family::csv::ImportReport& report);
    void ShowWritten(const family::csv::ImportReport& report);
    void ShowUndone(const family::registers::UndoneImport& undone);
    /// Why an import is not taken back.
    void ShowKept(const family::registers::UndoneImport& undone);
    void ShowFailure(const QString& failure);

private:
    void Say(const QString& summary);
    void Refuse(const QString& why);
    void ShowTable(const QString& name, const QStringList& titles, const std::vector<QStringList>& rows);
    void ShowChanges(const std::string& changes);
    void ShowKeptRows(const std::vector<family::registers::KeptRow>& rows);

    QLabel *step_, *summary_;
    screens::RefusalLabel* refusal_;
    QProgressBar* progress_;
    QTableWidget* table_;
    QPlainTextEdit* changes_;
};

} // namespace kova::registers
