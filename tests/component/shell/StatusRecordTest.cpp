#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <new>
#include <string>
#include <type_traits>

#include "ZRKCVSStatus.h"

namespace {

// Every field another value, so that a copy that mixes two of them up shows.
ZRKCVSStatus FilledRecord() {
  ZRKCVSStatus record;
  record.File = "file";
  record.Status = "status";
  record.WorkingRevision = "working";
  record.RepositoryRevision = "repository";
  record.ExpansionOption = "expansion";
  record.CommitIdentifier = "commit";
  record.StickyTag = "tag";
  record.StickyDate = "date";
  record.StickyOptions = "options";
  record.MergeFrom = "merge";
  record.ExistingTags = "tags";
  record.AuxText = "aux";
  record.LockOwner = "owner";
  record.IsVersioned = 1;
  record.Flag2 = 2;
  record.IsInEntries = 3;
  record.IsLockedHere = 4;
  record.IsLockedByOther = 5;
  record.Text1 = std::string("one\0more", 8);
  record.Text2 = "two";
  record.Text3 = "three";
  record.RevisionNumber = -7;
  return record;
}

void ExpectEqual(const ZRKCVSStatus& a, const ZRKCVSStatus& b) {
  EXPECT_TRUE(a.File == b.File);
  EXPECT_TRUE(a.Status == b.Status);
  EXPECT_TRUE(a.WorkingRevision == b.WorkingRevision);
  EXPECT_TRUE(a.RepositoryRevision == b.RepositoryRevision);
  EXPECT_TRUE(a.ExpansionOption == b.ExpansionOption);
  EXPECT_TRUE(a.CommitIdentifier == b.CommitIdentifier);
  EXPECT_TRUE(a.StickyTag == b.StickyTag);
  EXPECT_TRUE(a.StickyDate == b.StickyDate);
  EXPECT_TRUE(a.StickyOptions == b.StickyOptions);
  EXPECT_TRUE(a.MergeFrom == b.MergeFrom);
  EXPECT_TRUE(a.ExistingTags == b.ExistingTags);
  EXPECT_TRUE(a.AuxText == b.AuxText);
  EXPECT_TRUE(a.LockOwner == b.LockOwner);
  EXPECT_EQ(a.IsVersioned, b.IsVersioned);
  EXPECT_EQ(a.Flag2, b.Flag2);
  EXPECT_EQ(a.IsInEntries, b.IsInEntries);
  EXPECT_EQ(a.IsLockedHere, b.IsLockedHere);
  EXPECT_EQ(a.IsLockedByOther, b.IsLockedByOther);
  EXPECT_EQ(a.Text1, b.Text1);
  EXPECT_EQ(a.Text2, b.Text2);
  EXPECT_EQ(a.Text3, b.Text3);
  EXPECT_EQ(a.RevisionNumber, b.RevisionNumber);
}

const CATUnicodeString ZRKCVSStatus::*const kTexts[] = {&ZRKCVSStatus::File,
                                                        &ZRKCVSStatus::Status,
                                                        &ZRKCVSStatus::WorkingRevision,
                                                        &ZRKCVSStatus::RepositoryRevision,
                                                        &ZRKCVSStatus::ExpansionOption,
                                                        &ZRKCVSStatus::CommitIdentifier,
                                                        &ZRKCVSStatus::StickyTag,
                                                        &ZRKCVSStatus::StickyDate,
                                                        &ZRKCVSStatus::StickyOptions,
                                                        &ZRKCVSStatus::MergeFrom,
                                                        &ZRKCVSStatus::ExistingTags,
                                                        &ZRKCVSStatus::AuxText,
                                                        &ZRKCVSStatus::LockOwner};

const char* Address(const void* field) {
  return static_cast<const char*>(field);
}

}  // namespace

TEST(StatusRecord, ANewRecordKnowsNothing) {
  // Made in memory that is full of ones, so that a field without a value shows.
  alignas(ZRKCVSStatus) unsigned char memory[sizeof(ZRKCVSStatus)];
  std::fill(std::begin(memory), std::end(memory), static_cast<unsigned char>(0xFF));
  auto* const record = new (memory) ZRKCVSStatus;
  for (const auto text : kTexts) EXPECT_EQ((record->*text).GetLengthInByte(), 0);
  EXPECT_EQ(record->IsVersioned, 0);
  EXPECT_EQ(record->Flag2, 0);
  EXPECT_EQ(record->IsInEntries, 0);
  EXPECT_EQ(record->IsLockedHere, 0);
  EXPECT_EQ(record->IsLockedByOther, 0);
  EXPECT_EQ(record->Text1, "");
  EXPECT_EQ(record->Text2, "");
  EXPECT_EQ(record->Text3, "");
  EXPECT_EQ(record->RevisionNumber, 0);
  record->~ZRKCVSStatus();
}

TEST(StatusRecord, ACopyOfANewRecordIsEqualInEveryField) {
  const ZRKCVSStatus record;
  ExpectEqual(ZRKCVSStatus(record), record);
}

TEST(StatusRecord, ACopyIsEqualInEveryFieldAndStandsAlone) {
  ZRKCVSStatus record = FilledRecord();
  const ZRKCVSStatus copy(record);
  record = ZRKCVSStatus();
  ExpectEqual(copy, FilledRecord());
}

TEST(StatusRecord, AssignmentReplacesEveryFieldAndGivesTheRecordAssignedTo) {
  ZRKCVSStatus record;
  const ZRKCVSStatus filled = FilledRecord();
  EXPECT_EQ(&(record = filled), &record);
  ExpectEqual(record, filled);
  record = ZRKCVSStatus();
  ExpectEqual(record, ZRKCVSStatus());
}

TEST(StatusRecord, AssignedToItselfItStaysAsItIs) {
  ZRKCVSStatus record = FilledRecord();
  const ZRKCVSStatus& same = record;
  record = same;
  ExpectEqual(record, FilledRecord());
}

TEST(StatusRecord, IsAPlainValueWithItsFieldsInOrder) {
  static_assert(!std::is_polymorphic_v<ZRKCVSStatus>);
  const ZRKCVSStatus record;
  EXPECT_EQ(Address(&record), Address(&record.File));
  for (std::size_t i = 1; i < std::size(kTexts); ++i) {
    EXPECT_LT(Address(&(record.*kTexts[i - 1])), Address(&(record.*kTexts[i])));
  }
  EXPECT_LT(Address(&record.LockOwner), Address(&record.IsVersioned));
  EXPECT_LT(Address(&record.IsLockedByOther), Address(&record.Text1));
  EXPECT_LT(Address(&record.Text1), Address(&record.Text2));
  EXPECT_LT(Address(&record.Text2), Address(&record.Text3));
  EXPECT_LT(Address(&record.Text3), Address(&record.RevisionNumber));
}

TEST(StatusRecord, TheFlagsAreConsecutiveBytes) {
  const ZRKCVSStatus record;
  const char* const first = Address(&record.IsVersioned);
  EXPECT_EQ(Address(&record.Flag2) - first, 1);
  EXPECT_EQ(Address(&record.IsInEntries) - first, 2);
  EXPECT_EQ(Address(&record.IsLockedHere) - first, 3);
  EXPECT_EQ(Address(&record.IsLockedByOther) - first, 4);
}
