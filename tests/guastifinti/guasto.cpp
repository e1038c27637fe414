// Does one wrong thing, named by its argument.

#include <limits>
#include <memory>
#include <string_view>
#include <vector>

namespace {

int* volatile tenuto = nullptr; // volatile: what is not looked at would be left out by the optimiser

void perdi()
{
    tenuto = new int[16];
    tenuto = nullptr;
}

int leggiFuori()
{
    const std::vector<int> numeri(4);
    const int* volatile primo = numeri.data();
    return primo[4];
}

int leggiDopo()
{
    auto numero = std::make_unique<int>(1);
    tenuto = numero.get();
    numero.reset();
    return *tenuto;
}

int trabocca()
{
    volatile int grande = std::numeric_limits<int>::max();
    return grande + 1;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string_view quale = argc > 1 ? argv[1] : "";
    if (quale == "perdita")
        perdi();
    else if (quale == "fuori")
        return leggiFuori();
    else if (quale == "dopo")
        return leggiDopo();
    else if (quale == "trabocco")
        return trabocca();
    return 0;
}
