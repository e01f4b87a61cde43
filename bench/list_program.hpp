#pragma once

#include "agenda/list/frmLista.hpp"
#include "bench/data_host.hpp"
#include "host/host_platform.hpp"
#include "host/host_toolkit.hpp"
#include "host/session/session_clock.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"

#include <QWidget>

#include <memory>

namespace kova::bench {

/// The business components that the list asks for, on the measuring database. Anything else that it asks
/// for, such as the error screen, ends the program: what was to be measured did not happen.
class DataComponents : public ComponentService {
public:
    explicit DataComponents(std::string path) : host_(std::move(path)) { }

    ComponentRef CreateObject(std::string_view className) override;

private:
    DataHost host_;
};

/// The day's list in a window of that size in pixels, as the application shows it. One at a time; the
/// toolkit's application must exist.
class ListProgram {
public:
    ListProgram(const std::string& database, Date day, QSize size);
    ~ListProgram();
    ListProgram(const ListProgram&) = delete;
    ListProgram& operator=(const ListProgram&) = delete;

    agenda::frmLista& List() { return *list_; }
    QWidget& Window() { return window_; }
    qt::GridCanvas& Grid() { return *grid_; }

    /// Hides or shows the panel as its switch does; shows the first page.
    void ShowPanel(bool show);
    /// Shows the first page of a day, in pages of that many rows, whatever the window has room for.
    void ShowDay(Date day, Integer rowsOfPage);
    /// Appointments of the day on show.
    Long RecordCount() const;
    /// A button of the paging bar: 2 previous, 3 next.
    void PressBar(int button);
    /// The mouse reaches the middle of a row, counted from 1.
    void MoveMouseTo(int row);

private:
    host::SessionClock clock_;
    host::HostToolkit toolkit_;
    host::HostPlatform platform_;
    DataComponents components_;
    QWidget window_;
    std::shared_ptr<agenda::frmLista> list_;
    qt::GridCanvas* grid_ = nullptr;
};

/// The main function of a measuring program that takes "DATABASE dd/mm/yyyy": 0 when it has measured, 1 where
/// that failed, 2 where the arguments are not these two.
int MeasureOnDay(int count, char** words, const char* name,
                 void (*measure)(const std::string& database, Date day));

} // namespace kova::bench
