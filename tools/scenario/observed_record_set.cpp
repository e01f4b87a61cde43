#include "tools/scenario/observed_record_set.hpp"

#include "tools/scenario/value_text.hpp"

namespace kova::scenario {

namespace {

class ObservedRecordSet : public RecordSet {
public:
    ObservedRecordSet(RecordSetRef inner, std::shared_ptr<CrossingLog> log)
        : inner_(std::move(inner)), log_(std::move(log))
    {
    }

    Long RecordCount() const override { return inner_->RecordCount(); }
    int FieldCount() const override { return inner_->FieldCount(); }
    Text FieldName(int index) const override { return inner_->FieldName(index); }
    Value Field(std::string_view name) const override { return inner_->Field(name); }
    Value Field(int index) const override { return inner_->Field(index); }
    bool Eof() const override { return inner_->Eof(); }
    bool Bof() const override { return inner_->Bof(); }
    void MoveFirst() override { inner_->MoveFirst(); }
    void MoveLast() override { inner_->MoveLast(); }
    void MoveNext() override { inner_->MoveNext(); }
    void MovePrevious() override { inner_->MovePrevious(); }
    Text Sort() const override { return inner_->Sort(); }
    void Sort(std::string_view order) override
    {
        log_->line("set recordset.Sort " + Quoted(order));
        inner_->Sort(order);
    }
    Long PageSize() const override { return inner_->PageSize(); }
    void PageSize(Long rows) override { inner_->PageSize(rows); }
    Long PageCount() const override { return inner_->PageCount(); }
    Long AbsolutePage() const override { return inner_->AbsolutePage(); }
    void AbsolutePage(Long page) override
    {
        log_->line("set recordset.AbsolutePage " + std::to_string(page));
        inner_->AbsolutePage(page);
    }
    Long AbsolutePosition() const override { return inner_->AbsolutePosition(); }

private:
    RecordSetRef inner_;
    std::shared_ptr<CrossingLog> log_;
};

} // namespace

RecordSetRef Observe(RecordSetRef inner, std::shared_ptr<CrossingLog> log)
{
    return std::make_shared<ObservedRecordSet>(std::move(inner), std::move(log));
}

Value Observed(const Value& value, const std::shared_ptr<CrossingLog>& log)
{
    if (auto records = std::dynamic_pointer_cast<RecordSet>(value.HeldObject()))
        return Observe(std::move(records), log);
    return value;
}

} // namespace kova::scenario
