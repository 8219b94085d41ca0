#import <Foundation/Foundation.h>

extern "C" void CFInventedFunction(void);

@interface NSString (Invented)
- (void)inventedMessage:(int)number;
@end

void callThem(NSString* text) {
    CFInventedFunction();
    [text inventedMessage:1];
}
