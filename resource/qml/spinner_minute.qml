import "content"

NumberSpinner {
    model: 60
}
