TEST(AnyTest, OnSomeSystems) {
  if (GetACP() != 932) GTEST_SKIP();
}
