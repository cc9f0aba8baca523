#include "data/TableChoices.h"
#include "data/Errors.h"
#include "support/Catalogue.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

/// The entries as "text=number", separated by blanks.
std::string Shown(const std::vector<Choice>& choices)
{
    std::string shown;
    for (const Choice& choice : choices)
        shown += (shown.empty() ? "" : " ") + choice.Text + "=" + std::to_string(choice.Data);
    return shown;
}

TEST(TableChoices, TheLevelsAreTheTwoInTheirOrder)
{
    EXPECT_EQ(Shown(RazinaChoices()), "Preddiplomski=0 Diplomski=0");
}

TEST(TableChoices, TheLowerLevelHasSixSemestersAndTheHigherFour)
{
    EXPECT_EQ(Shown(SemestarChoices("Preddiplomski")), "1=1 2=2 3=3 4=4 5=5 6=6");
    EXPECT_EQ(Shown(SemestarChoices("Diplomski")), "1=1 2=2 3=3 4=4");
}

TEST(TableChoices, StudiesOfALevelComeInTableOrder)
{
    Catalogue catalogue;
    catalogue.Studiji = {"9;X;Z;Diplomski", "02;X;A;Preddiplomski", "1; X ; B ;Preddiplomski"};
    catalogue.Use();
    EXPECT_EQ(Shown(StudijChoices("Preddiplomski", RazinaMatch::Exact)), "A=2  B =1");
    EXPECT_EQ(Shown(StudijChoices("Diplomski", RazinaMatch::Exact)), "Z=9");
}

TEST(TableChoices, ALevelIsComparedExactlyOrWithoutTheBlanksAroundIt)
{
    Catalogue catalogue;
    catalogue.Studiji = {"1;X;A;Diplomski ", "2;X;B;diplomski", "3;X;C;Diplomski"};
    catalogue.Use();
    EXPECT_EQ(Shown(StudijChoices("Diplomski", RazinaMatch::Exact)), "C=3");
    EXPECT_EQ(Shown(StudijChoices(" Diplomski", RazinaMatch::Exact)), "");
    EXPECT_EQ(Shown(StudijChoices(" Diplomski", RazinaMatch::Trimmed)), "A=1 C=3");
}

TEST(TableChoices, TheIDOfAnotherLevelsStudyIsNotRead)
{
    Catalogue catalogue;
    catalogue.Studiji = {"x;X;A;Diplomski", "1;X;B;Preddiplomski"};
    catalogue.Use();
    EXPECT_EQ(Shown(StudijChoices("Preddiplomski", RazinaMatch::Exact)), "B=1");
    EXPECT_THROW(StudijChoices("Diplomski", RazinaMatch::Exact), TypeMismatch);
}

TEST(TableChoices, DirectionsBelongToAStudyByNumber)
{
    Catalogue catalogue;
    catalogue.Smjerovi = {"5;X;C;01;", "4;X;B;2;", "3;X;A; 1 ;"};
    catalogue.Use();
    EXPECT_EQ(Shown(SmjerChoices(1)), "C=5 A=3");
    EXPECT_EQ(Shown(WithSvi(SmjerChoices(2))), "Svi=0 B=4");
    EXPECT_EQ(Shown(WithSvi(SmjerChoices(3))), "Svi=0");
}

TEST(TableChoices, ADirectionWithABadStudyIsAnErrorForEveryStudy)
{
    Catalogue catalogue;
    catalogue.Smjerovi = {"1;X;A;1;", "2;X;B;x;"};
    catalogue.Use();
    EXPECT_THROW(SmjerChoices(1), TypeMismatch);
    EXPECT_THROW(SmjerChoices(7), TypeMismatch);
}

TEST(TableChoices, LecturersComeByNameWithOrWithoutTheNamelessOnes)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"7;Šarić;;1", "2;  ;;1", "7; Anić ;;1"};
    catalogue.Use();
    EXPECT_EQ(Shown(NastavnikChoices()), "Šarić=7   =2  Anić =7");
    EXPECT_EQ(Shown(NamedNastavnikChoices()), "Šarić=7  Anić =7");
}

TEST(TableChoices, TheIDOfANamelessLecturerIsNotRead)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"x; ;;1", "2;Anić;;1"};
    catalogue.Use();
    EXPECT_EQ(Shown(NamedNastavnikChoices()), "Anić=2");
    EXPECT_THROW(NastavnikChoices(), TypeMismatch);
}

TEST(TableChoices, ADepartmentWhoseIDIsNoNumberCountsAs0)
{
    Catalogue catalogue;
    catalogue.Zavodi = {"x;Prvi;P", "99999999999;Drugi;D", "3;Treći;T"};
    catalogue.Use();
    EXPECT_EQ(Shown(ZavodChoices()), "Prvi=0 Drugi=0 Treći=3");
}

} // namespace
