import "content"

NumberSpinner {
    model: 24
}
