#include <ZelCommonView/ZelCommonView.h>

int main() {
    return 0;
}
