// Nothing but a program to compile headers for.
int main() { return 0; }
