#include "support/samples.hpp"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <memory>

namespace pointertest {

struct Incomplete;

struct Abstract
{
    virtual ~Abstract() = default;
    virtual void act() = 0;
};

} // namespace pointertest

namespace zu {

namespace {

const PointerTypeInterface& pointerType(const TypeInterface* type)
{
    return dynamic_cast<const PointerTypeInterface&>(*type);
}

/// Whether a pointer that is no null pointer tells nothing of what it points to.
template <class Pointer>
bool isOpaque(const Pointer& pointer)
{
    const AnyValue value = AnyValue::from(pointer);
    return value.kind() == TypeKind::Pointer && value.content().kind() == TypeKind::Void &&
           pointerType(value.type()).pointedType() == typeOf<void>();
}

} // namespace

TEST(Pointer, TellsWhatItPointsTo)
{
    int number = 1;
    const auto shared = std::make_shared<std::string>("s");
    const auto boosted = boost::make_shared<int>(3);
    EXPECT_EQ(pointerType(typeOf<int*>()).pointerKind(), PointerKind::Raw);
    EXPECT_EQ(pointerType(typeOf<int*>()).pointedType(), typeOf<int>());
    EXPECT_EQ(pointerType(typeOf<std::shared_ptr<int>>()).pointerKind(), PointerKind::Shared);
    EXPECT_EQ(pointerType(typeOf<boost::shared_ptr<int>>()).pointerKind(), PointerKind::Shared);
    EXPECT_EQ(AnyValue::from(&number).content().address(), &number);
    EXPECT_EQ(AnyValue::from(shared).content().text(), "s");
    EXPECT_EQ(AnyValue::from(boosted).content().toInt(), 3);
    EXPECT_EQ(AnyValue::from(sample::makeService()).content().kind(), TypeKind::Object);
    EXPECT_EQ(pointerType(typeOf<pointertest::Abstract*>()).pointedType()->kind(), TypeKind::Unknown);
}

TEST(Pointer, ToWhatIsNotKnownIsOpaque)
{
    int numbers[2] = {1, 2};
    volatile int fickle = 1;
    EXPECT_TRUE(isOpaque(static_cast<void*>(&numbers)));
    EXPECT_TRUE(isOpaque(std::shared_ptr<void>(std::make_shared<int>(1))));
    EXPECT_TRUE(isOpaque(reinterpret_cast<pointertest::Incomplete*>(&numbers)));
    EXPECT_TRUE(isOpaque(reinterpret_cast<const pointertest::Incomplete*>(&numbers)));
    EXPECT_TRUE(isOpaque(std::shared_ptr<pointertest::Incomplete>(
        std::make_shared<int>(1), reinterpret_cast<pointertest::Incomplete*>(&numbers))));
    EXPECT_TRUE(isOpaque(&numbers));
    EXPECT_TRUE(isOpaque(std::shared_ptr<int[]>(new int[2])));
    EXPECT_TRUE(isOpaque(boost::make_shared<int[]>(2)));
    EXPECT_TRUE(isOpaque(&fickle));
}

TEST(Pointer, NullPointersPointToNothing)
{
    EXPECT_TRUE(AnyValue::from(static_cast<int*>(nullptr)).content().isEmpty());
    EXPECT_TRUE(AnyValue::from(static_cast<void*>(nullptr)).content().isEmpty());
    EXPECT_TRUE(AnyValue::from(static_cast<pointertest::Incomplete*>(nullptr)).content().isEmpty());
    EXPECT_TRUE(AnyValue::from(std::shared_ptr<int>()).content().isEmpty());
    EXPECT_TRUE(AnyValue::from(std::shared_ptr<int[]>()).content().isEmpty());
    EXPECT_TRUE(AnyValue::from(boost::shared_ptr<int>()).content().isEmpty());
}

TEST(Pointer, ToAFunctionIsOfUnknownKind) { EXPECT_EQ(AnyValue::from(&sample::makeService).kind(), TypeKind::Unknown); }

} // namespace zu
