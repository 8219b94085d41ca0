namespace tessaline {

void inventedFunction();

void callIt() {
    inventedFunction();
}

} // namespace tessaline
