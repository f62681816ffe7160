take name Main x
out/b.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/b/b.$F4.exr"	)
vm_picture	[ 0	locks=0 ]	(	"$ACTIVETAKE/$F4/chs(x)"	)
}
