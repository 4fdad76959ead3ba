int host();

int host() {
    return 1;
}
