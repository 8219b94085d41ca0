#import <Foundation/Foundation.h>

struct Answer {
    bool yes;
};

// On Intel's processors a BOOL is a number, which no initialiser narrows.
Answer answer(NSObject* one, NSObject* other) {
    return {[one isEqual:other]};
}
