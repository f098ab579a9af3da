// The parts of programs that the documentation shows are compiled and linked here; there is nothing to run.
int main() {
    return 0;
}
