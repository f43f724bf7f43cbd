import "content"

NumberSpinner {
    model: 12
}
