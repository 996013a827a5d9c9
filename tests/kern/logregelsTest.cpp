#include "Knipselaar/kern/logregels.h"

#include <gtest/gtest.h>

TEST(Logregels, StaanLetterVoorLetterVast) {
    EXPECT_EQ("Originele dir : /een/bron\n", kern::regelOrigineleDirectory("/een/bron"));
    EXPECT_EQ("Student dir : /een/doel\n", kern::regelStudentDirectory("/een/doel"));
    EXPECT_EQ("In totaal 1234567 bestanden en directories gevonden in /een/doel\n",
              kern::regelTotaal(1234567, "/een/doel"));
    EXPECT_EQ("Overgeslagen 1:/een/x.txt\n", kern::regelOvergeslagen(1, "/een/x.txt"));
    EXPECT_EQ("Orig bestand 12:a.c\n", kern::regelOrigineel(12, "a.c"));
    EXPECT_EQ("Student bestand 12:%s %ld.c\n", kern::regelStudent(12, "%s %ld.c"));
}
