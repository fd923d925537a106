#include "support/log_capture.hpp"
#include "support/samples.hpp"

#include <zu/dispatch.hpp>
#include <zu/type/struct.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace zu {

namespace {

/// Tells which handler was called and what it was given.
class Teller final : public TypeVisitor
{
public:
    void visitUnknown(const AnyReference& value) override { told = "unknown " + value.type()->name(); }
    void visitVoid() override { told = "void"; }
    void visitInt(std::int64_t number, bool isSigned, unsigned byteSize) override
    {
        told = "int " + std::to_string(number) + (isSigned ? " signed " : " unsigned ") + std::to_string(byteSize);
    }
    void visitFloat(double number, unsigned byteSize) override
    {
        told = "float " + std::to_string(number) + " " + std::to_string(byteSize);
    }
    void visitString(std::string_view text) override { told = "string " + std::string(text); }
    void visitList(const AnyReference& list) override { told = "list " + std::to_string(list.size()); }
    void visitMap(const AnyReference& map) override
    {
        told = "map " + (*map.begin())._element(0).toString() + " " + (*map.begin())._element(1).toString();
    }
    void visitObject(const AnyReference& object) override { told = "object " + object.type()->name(); }
    void visitPointer(PointerKind kind, const AnyReference& pointee) override
    {
        told = std::string("pointer ") + (kind == PointerKind::Shared ? "shared " : "raw ") +
               (pointee.isEmpty() ? "null" : pointee.type()->name());
    }
    void visitTuple(const std::string& className, const std::vector<AnyReference>& values,
                    const std::vector<std::string>& names) override
    {
        told = "tuple " + className + " " + std::to_string(values.size()) + " " + std::to_string(names.size()) +
               (!values.empty() && values[0].isReadOnly() ? " read-only" : "");
    }
    void visitDynamic(const AnyReference& dynamic) override
    {
        told = "dynamic " + (dynamic.content().isEmpty() ? "empty" : dynamic.content().type()->name());
    }
    void visitRaw(std::string_view bytes) override { told = "raw " + std::to_string(bytes.size()); }
    void visitIterator(const AnyReference& iterator) override { told = "iterator " + iterator.type()->name(); }
    void visitVarArgs(const AnyReference& arguments) override { told = "varargs " + std::to_string(arguments.size()); }
    void visitOptional(const AnyReference& optional) override
    {
        told = optional.content().isEmpty() ? "optional absent" : "optional present";
    }

    std::string told = "nothing";
};

std::string toldOf(const AnyReferenceBase& value)
{
    Teller teller;
    dispatch(value, teller);
    return teller.told;
}

template <class T>
std::string told(const T& value)
{
    return toldOf(AnyReference::from(value));
}

/// Of a kind that is none.
class StrangeType final : public TypeInterface
{
public:
    explicit StrangeType(int kind) : TypeInterface(TypeInfo::of<int>(), static_cast<TypeKind>(kind)) {}
    void* initializeStorage() const override { return nullptr; }
    void* clone(const void*) const override { return nullptr; }
    void destroy(void*) const override {}
};

} // namespace

TEST(Dispatch, EveryKindHasItsHandler)
{
    std::vector<int> list{1, 2};
    int number = 1;
    EXPECT_EQ(told(sample::Opaque("x")), "unknown sample::Opaque");
    EXPECT_EQ(toldOf(AnyReference(typeOf<void>(), nullptr)), "void");
    EXPECT_EQ(told(-5), "int -5 signed 4");
    EXPECT_EQ(told(1.5f), "float 1.500000 4");
    EXPECT_EQ(told(std::string("text")), "string text");
    EXPECT_EQ(told(list), "list 2");
    EXPECT_EQ(told(std::map<std::string, std::string>{{"k", "v"}}), "map k v");
    EXPECT_EQ(told(*sample::makeService()), "object sample::Service");
    EXPECT_EQ(told(&number), "pointer raw int");
    EXPECT_EQ(told(std::pair<int, int>()), "tuple  2 0 read-only");
    EXPECT_EQ(told(AnyValue::from(1)), "dynamic int");
    EXPECT_EQ(told(Buffer(3)), "raw 3");
    EXPECT_EQ(told(AnyReference::from(list).begin()), "iterator zu::AnyIterator");
    EXPECT_EQ(told(VarArguments<int>({1, 2, 3})), "varargs 3");
    EXPECT_EQ(told(std::optional<int>(1)), "optional present");
}

TEST(Dispatch, IntegersComeWithSignAndSize)
{
    EXPECT_EQ(told(true), "int 1 unsigned 0");
    EXPECT_EQ(told(std::uint64_t(UINT64_MAX)), "int -1 unsigned 8");
    EXPECT_EQ(told(std::int8_t(-1)), "int -1 signed 1");
}

TEST(Dispatch, TextComesWithItsLength) { EXPECT_EQ(told(std::string("a\0b", 3)), std::string("string a\0b", 10)); }

TEST(Dispatch, StructsComeWithClassNameAndNames)
{
    sample::Point point;
    EXPECT_EQ(toldOf(AnyReference::from(point)), "tuple ::sample::Point 2 2");
    EXPECT_EQ(told(point), "tuple ::sample::Point 2 2 read-only");
}

TEST(Dispatch, PointersTellWhetherTheyShare)
{
    EXPECT_EQ(told(sample::makeService()), "pointer shared sample::Service");
    EXPECT_EQ(told(std::shared_ptr<int>()), "pointer shared null");
    EXPECT_EQ(told(static_cast<int*>(nullptr)), "pointer raw null");
}

TEST(Dispatch, WhatHoldsNothingIsHandedOutAsSuch)
{
    EXPECT_EQ(told(AnyValue()), "dynamic empty");
    EXPECT_EQ(told(AnyReference()), "dynamic empty");
    EXPECT_EQ(told(std::optional<int>()), "optional absent");
    EXPECT_EQ(told(Buffer()), "raw 0");
}

TEST(Dispatch, AnInterfaceWithTooFewNamesIsPassedOn)
{
    class Mismatched final : public Native<sample::Point, StructTypeInterface>
    {
    public:
        const std::string& className() const override { return m_name; }
        const std::vector<std::string>& elementsName() const override { return m_names; }
        std::vector<const TypeInterface*> memberTypes() const override { return {typeOf<int>(), typeOf<int>()}; }
        AnyReference element(void* value, std::size_t) const override { return AnyReference::from(object(value).x); }
        std::vector<AnyReference> values(void* value) const override { return {element(value, 0), element(value, 1)}; }

    private:
        std::string m_name = "::Mismatched";
        std::vector<std::string> m_names{"x"};
    };
    const Mismatched type;
    sample::Point point;
    EXPECT_EQ(toldOf(AnyReference(&type, &point)), "tuple ::Mismatched 2 1");
}

TEST(Dispatch, DescriptorsAreReportedAndNotHandled)
{
    const Capture capture;
    EXPECT_EQ(told(std::function<void()>()), "nothing");
    EXPECT_EQ(told(Signal<int>()), "nothing");
    EXPECT_EQ(told(Property<int>()), "nothing");
    ASSERT_EQ(capture.records.size(), 3u);
    for (const auto& [level, category, message, file, function, line] : capture.records) {
        EXPECT_EQ(level, log::Level::Warning);
        EXPECT_EQ(category, "zutype.typedispatcher");
        EXPECT_EQ(message, "Signal and Property not handled");
        EXPECT_EQ(file, "src/dispatch");
        EXPECT_EQ(function, "zu::dispatch");
    }
}

TEST(Dispatch, AnEmptyReferenceIsReported)
{
    const Capture capture;
    EXPECT_EQ(toldOf(AnyReference()), "nothing");
    EXPECT_EQ(toldOf(AnyValue()), "nothing");
    ASSERT_EQ(capture.records.size(), 2u);
    EXPECT_EQ(std::get<0>(capture.records[0]), log::Level::Warning);
    EXPECT_EQ(std::get<1>(capture.records[0]), "zutype.typedispatcher");
    EXPECT_EQ(std::get<2>(capture.records[0]), "NULL type");
}

TEST(Dispatch, NumbersThatAreNoKindArePassedOverInSilence)
{
    const Capture capture;
    int number = 1;
    for (const int kind : {12, 19, 1'000, -1}) {
        const StrangeType type(kind);
        EXPECT_EQ(toldOf(AnyReference(&type, &number)), "nothing") << kind;
    }
    EXPECT_TRUE(capture.records.empty());
}

TEST(PartialVisitor, TellsOfTheKindsThatItDoesNotHandle)
{
    class Texts final : public PartialVisitor
    {
    public:
        void visitString(std::string_view text) override { seen += text; }
        void visitList(const AnyReference& list) override
        {
            for (const AnyReference element : list)
                dispatch(element, *this);
        }
        std::string seen;

    private:
        void visitOther(TypeKind kind) override { seen += '<' + std::string(kindName(kind)) + '>'; }
    };
    Texts visitor;
    const std::vector<AnyValue> values{AnyValue::from("a"),
                                       AnyValue::from(1),
                                       AnyValue(),
                                       AnyValue::from(std::optional<std::string>("b")),
                                       AnyValue::from(VarArguments<std::string>({"c"})),
                                       AnyValue::from(std::map<int, int>()),
                                       AnyValue::from(sample::Point())};
    dispatch(AnyReference::from(values), visitor);
    EXPECT_EQ(visitor.seen, "a<Int><Dynamic>bc<Map><Tuple>");
}

TEST(PartialVisitor, ComesToAnEndWhereDynamicsDoNot)
{
    class Counter final : public PartialVisitor
    {
    public:
        int others = 0;

    private:
        void visitOther(TypeKind) override { ++others; }
    };
    AnyReference self;
    self = AnyReference::from(self);
    Counter visitor;
    dispatch(self, visitor);
    EXPECT_EQ(visitor.others, 1);
}

} // namespace zu
